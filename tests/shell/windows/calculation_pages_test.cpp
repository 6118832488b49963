// The pages of the worked calculation: of all ten kinds in both unit systems.

#include "shell/windows/calculation_pages.h"

#include <fstream>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QBuffer>
#include <QPdfWriter>
#include <QRegularExpression>

#include "calculation/worked_calculation.h"
#include "engine/unit_constants.h"
#include "tools/case_table.h"

namespace gullymark::shell {
namespace {

/// How many pages a PDF file says that it has.
int pages_in(const QByteArray& pdf) {
    static const QRegularExpression count(QStringLiteral("/Type /Pages[^>]*/Count ([0-9]+)"),
                                          QRegularExpression::DotMatchesEverythingOption);
    return count.match(QString::fromLatin1(pdf)).captured(1).toInt();
}

struct Sheet {
    calculation::Document document;
    section::Section section;
};

Sheet sheet_of_open_inlet() {
    return {calculation::work_out({.inlet = engine::open_inlet,
                                   .units = engine::UnitSystem,
                                   .project = {.id = "P-1",
                                               .name = "Oak Street",
                                               .county = "Autauga",
                                               .state = "Alabama",
                                               .designer = "N. N."},
                                   .today = std::chrono::year(2026) / 11 / 22}),
            section::draw_section(engine::open_inlet, section::Water::solved)};
}

TEST(CalculationPages, TextsOfAnyLengthAndWithMarksOfTheToolkitStandOnThem) {
    const auto table = cases::read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/solves_unreadable.tsv");
    for (const auto& row : table.rows) {
        cases::solve_row(table, row);
        const std::string wild = "<b>&amp;</b>" + std::string(5000, 'w');
        for (const auto column : {engine::Column::ROADWAY, engine::Column::INLET_NUMBER,
                                  engine::Column::MANNINGS, engine::Column::QINT}) {
            engine::open_inlet.load(column, wild);
        }
        const Sheet sheet = sheet_of_open_inlet();
        EXPECT_LE(pages_in(calculation_pdf(sheet.document, sheet.section)), 4);
        if (&row - table.rows.data() >= 12) {
            break;
        }
    }
}

TEST(CalculationPages, AnInletOfEachKindTakesThreePagesAtMostInBothUnitSystems) {
    const auto table = cases::read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/solves_ordinary.tsv");
    constexpr std::size_t of_each_kind = 30;
    const char* const folder = std::getenv("GULLYMARK_PICTURES");
    for (std::size_t row = 0; row < table.rows.size(); row += of_each_kind / 3) {
        cases::solve_row(table, table.rows[row]);
        const Sheet sheet = sheet_of_open_inlet();
        const QByteArray pdf = calculation_pdf(sheet.document, sheet.section);
        EXPECT_GT(pages_in(pdf), 0);
        EXPECT_LE(pages_in(pdf), 3) << "row " << row << ", "
                                    << cases::cell(table, table.rows[row], "INLET_TYPE");
        if (folder != nullptr) {
            std::ofstream(std::string(folder) + "/calculation_" + std::to_string(row) + ".pdf",
                          std::ios::binary)
                .write(pdf.constData(), pdf.size());
        }
    }
}

}  // namespace
}  // namespace gullymark::shell
