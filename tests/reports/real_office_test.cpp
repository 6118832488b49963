#include <algorithm>
#include <filesystem>
#include <memory>

#include "platform/spreadsheet_office.h"
#include "reports/cell_table.h"
#include "reports/inlet_design_form.h"
#include "reports/inlet_report.h"
#include "store/project_store.h"
#include "support/child_process.h"
#include "support/sqlite_file.h"
#include "support/test_office.h"
#include "tools/project_maker.h"

/// Both sheets from their templates, filled by the real office, saved by the test and read back.
namespace gullymark::reports {
namespace {

using platform::CellPosition;
using platform::SheetContent;
using testing_support::TestOffice;

constexpr double number_of_today = 40305.0;  // 7 May 2010

const std::vector<std::string> looks_like_more = {
    "=1+1", "=HYPERLINK(\"http://example.com\")", "0123", "1/2", "-", "1e5", "+5"};

struct RealOfficeReports : ReportFixture {
    static void SetUpTestSuite() { office = std::make_unique<TestOffice>(GULLYMARK_OFFICE); }
    static void TearDownTestSuite() { office.reset(); }

    RealOfficeReports() {
        platform::set_program_folder(GULLYMARK_PROGRAM_FOLDER);
        use_office(office->settings(saved));
    }
    ~RealOfficeReports() override { platform::use_office({}); }
    RealOfficeReports(const RealOfficeReports&) = delete;
    RealOfficeReports& operator=(const RealOfficeReports&) = delete;

    /// What the user's workbook holds after a report was written.
    template <typename Report>
    [[nodiscard]] SheetContent saved_after(const Report& report) {
        write(report);
        return platform::spreadsheet.open({.path = saved});
    }

    /// What is to be written into a workbook of that content.
    template <typename Report>
    [[nodiscard]] platform::Cells written_into(const SheetContent& bare, const Report& report) {
        platform::Cells cells;
        {
            testing_support::SpreadsheetDouble in_memory;
            in_memory.content = bare;
            write(report);
            cells = in_memory.cells;
        }
        use_office(office->settings(saved));
        return cells;
    }

    [[nodiscard]] SheetContent content_of_template(const std::string& name) const {
        const std::string copy = office->path("template.xls");
        platform::copy_file(platform::join_path(GULLYMARK_PROGRAM_FOLDER, name), copy);
        return platform::spreadsheet.open({.path = copy, .sheet = platform::SheetChoice::active});
    }

    template <typename Report>
    void write(const Report& report) {
        outside.choices = {target};
        std::filesystem::remove(target);
        report();
    }

    static std::unique_ptr<TestOffice> office;
    std::string saved = office->path("saved.xls");
};

std::unique_ptr<TestOffice> RealOfficeReports::office;

CellValue value_at(const SheetContent& content, CellPosition cell) {
    const auto found = content.cells.find(cell);
    return found == content.cells.end() ? nothing : found->second;
}

/// Numbers and texts alike: which of both a cell holds follows from its format.
std::string shown(const CellValue& value) {
    return std::holds_alternative<platform::Date>(value) ? platform::number_text(number_of_today)
                                                         : platform::cell_text(value);
}

bool is_text_cell(const SheetContent& content, CellPosition cell) {
    return std::ranges::any_of(content.text_cells, [&](const platform::CellRange& range) {
        return range.first.row <= cell.row && cell.row <= range.last.row &&
               range.first.column <= cell.column && cell.column <= range.last.column;
    });
}

/// Every cell of the table; a number stands as a number unless its cell is formatted as text.
void expect_cells_of_table(const SheetContent& content, const engine::InletRecord& inlet, std::size_t kind) {
    for (const auto& row : cell_table().rows) {
        const CellPosition cell = position(row[0]);
        const CellValue expected = source_value(inlet, row[kind]);
        const CellValue found = value_at(content, cell);
        EXPECT_EQ(shown(found), shown(expected)) << cell_table().columns[kind] << ' ' << row[0];
        if (std::holds_alternative<double>(expected)) {
            EXPECT_EQ(std::holds_alternative<double>(found), !is_text_cell(content, cell)) << row[0];
        }
    }
}

bool holds_text(const SheetContent& content, const std::string& text) {
    return std::ranges::any_of(content.cells,
                               [&](const auto& cell) { return cell.second == CellValue(text); });
}

/// The units beside the values are those of the project, and none of the others.
void expect_units(const SheetContent& content, bool english) {
    for (const char* unit : {"ft", "ft/ft", "in", "cfs", "Ac"}) {
        EXPECT_EQ(holds_text(content, unit), english) << unit;
    }
    for (const char* unit : {"m", "m/m", "mm", "cms", "Hc"}) {
        EXPECT_EQ(holds_text(content, unit), !english) << unit;
    }
    EXPECT_TRUE(
        shown(value_at(content, {17, 1})).ends_with(english ? "ntensity (in/hr)" : "ntensity (mm/hr)"));
}

/// In the tables of data and of results a value has its label on the same row, and a label its value.
void expect_labels(const SheetContent& content, const std::string& kind) {
    for (int row = 23; row <= 42; ++row) {
        for (const auto& [label, value] : {std::pair(1, 6), std::pair(8, 10)}) {
            if (row == 31 || row == 32) {
                continue;  // a heading
            }
            EXPECT_EQ(shown(value_at(content, {row, label})).empty(),
                      shown(value_at(content, {row, value})).empty())
                << kind << ' ' << row << ',' << value << ": " << shown(value_at(content, {row, label}))
                << " / " << shown(value_at(content, {row, value}));
        }
    }
    for (const auto& [cell, value] : content.cells) {
        EXPECT_FALSE(shown(value).starts_with('#')) << kind << ' ' << cell.row << ',' << cell.column;
    }
}

TEST_F(RealOfficeReports, TheInletReportOfEveryKindHoldsItsCellsUnderTheirLabels) {
    for (std::size_t kind = 1; kind < cell_table().columns.size(); ++kind) {
        const bool english = kind % 3 != 0;
        store::session.projectUnits = english ? "ENGLISH" : "METRIC";
        const engine::InletRecord inlet = full_inlet_of_kind(cell_table().columns[kind]);
        const SheetContent content = saved_after([&] { inlet_report(1, inlet); });
        expect_cells_of_table(content, inlet, kind);
        expect_labels(content, cell_table().columns[kind]);
        expect_units(content, english);
    }
    EXPECT_TRUE(outside.boxes.empty());
}

/// Every cell that was to be written, as it stands in the saved workbook.
void expect_written(const SheetContent& content, const platform::Cells& written) {
    for (const auto& [cell, value] : written) {
        const CellValue expected =
            std::holds_alternative<platform::Date>(value) ? CellValue(number_of_today) : value;
        EXPECT_EQ(value_at(content, cell), expected) << cell.row << ',' << cell.column;
    }
}

TEST_F(RealOfficeReports, ATextInTheInletReportStaysThatTextWhateverItLooksLike) {
    const SheetContent bare = content_of_template("INLET_REPORTAL.xlr");
    for (std::size_t shift = 0; shift < 2; ++shift) {
        engine::InletRecord inlet = inlet_of_kind(combination, "SUMP");
        for (const Column column : engine::all_columns) {
            if (inlet.is_null(column)) {
                const std::size_t text = static_cast<std::size_t>(column) + shift * 3;
                inlet.load(column, looks_like_more.at(text % looks_like_more.size()));
            }
        }
        store::session.projectId = looks_like_more[shift];
        store::session.projectName = looks_like_more[shift + 2];
        const auto report = [&] { inlet_report(1, inlet); };
        const platform::Cells written = written_into(bare, report);
        EXPECT_EQ(written.at({8, 4}), CellValue(inlet.text(Column::ROADWAY)));
        EXPECT_EQ(written.at({3, 4}), CellValue(looks_like_more[shift + 2]));
        expect_written(saved_after(report), written);
    }
}

struct RealOfficeForm : RealOfficeReports {
    std::string project = user.path("road.gmk");

    RealOfficeForm() {
        store::project_store = {};
        tools::make_project(GULLYMARK_TEMPLATE,
                            std::string(GULLYMARK_TEST_DIR) + "/cases/solves_ordinary.tsv", project, 30);
        store::project_store.connection.open(project);
    }
    ~RealOfficeForm() override { store::project_store = {}; }
    RealOfficeForm(const RealOfficeForm&) = delete;
    RealOfficeForm& operator=(const RealOfficeForm&) = delete;

    [[nodiscard]] std::string columns(const std::string& columns) const {
        return testing_support::run_sql(project, "SELECT " + columns + " FROM INLET ORDER BY INLET_NUMBER");
    }
};

TEST_F(RealOfficeForm, TheDesignFormOfThirtyMixedInletsHoldsEveryCellThatItsMapTells) {
    EXPECT_EQ(testing_support::run_sql(
                  project, "SELECT count(DISTINCT INLET_TYPE || INLET_LOCATION), count(*) FROM INLET"),
              "10|30");
    const auto form = [] { InletDesignForm(30); };
    const platform::Cells written = written_into(content_of_template("INLETDESIGNFORMAL.xlr"), form);
    const SheetContent content = saved_after(form);
    expect_written(content, written);
    std::istringstream numbers(columns("INLET_NUMBER || ' ' || (INLET_LOCATION = 'SUMP')"));
    int row = 15;
    for (std::string number; numbers >> number;) {
        EXPECT_EQ(value_at(content, {row, 1}), CellValue(number));
        int sump = 0;
        numbers >> sump;
        row += sump == 1 ? 3 : 1;
    }
    EXPECT_EQ(row, written.rbegin()->first.row + 1);
    EXPECT_TRUE(outside.boxes.empty());
}

TEST_F(RealOfficeForm, ATextInTheDesignFormStaysThatTextWhateverItLooksLike) {
    const SheetContent bare = content_of_template("INLETDESIGNFORMAL.xlr");
    testing_support::run_sql(project, "DELETE FROM INLET");
    std::string names;
    for (const Column column : engine::all_columns) {
        names += (names.empty() ? "" : ",") + std::string(engine::column_name(column));
    }
    for (const std::string& text : looks_like_more) {
        std::string values;
        for (const Column column : engine::all_columns) {
            const bool location = column == Column::INLET_LOCATION;
            values += (values.empty() ? "'" : ",'") + (location ? "SUMP"s : text) + "'";
        }
        testing_support::run_sql(project, "INSERT INTO INLET (" + names + ") VALUES (" + values + ")");
    }
    const auto form = [] { InletDesignForm(1); };
    const platform::Cells written = written_into(bare, form);
    EXPECT_EQ(written.at({15, 3}), CellValue("+5"s));
    expect_written(saved_after(form), written);
}

// Faults.

TEST_F(RealOfficeReports, OverAnOldReportThatCannotBeReplacedNothingOfItIsShown) {
    engine::InletRecord first = full_inlet_of_kind(cell_table().columns[1]);
    static_cast<void>(saved_after([&] { inlet_report(1, first); }));
    std::filesystem::copy_file(saved, target, std::filesystem::copy_options::overwrite_existing);
    // Another user has it open: the office opens nothing under that name.
    const std::string lock = user.path(".~lock.report.xls#");
    testing_support::write_file(lock, ",Someone,elsewhere,20.11.2025 10:00,file:///elsewhere;");
    outside.choices = {target};
    outside.answers = {platform::Answer::yes};
    engine::InletRecord second;
    second.load(Column::INLET_NUMBER, "second");
    inlet_report(1, second);
    std::filesystem::remove(lock);
    const SheetContent content = platform::spreadsheet.open({.path = saved});
    EXPECT_EQ(shown(value_at(content, {8, 2})), "second");
    EXPECT_EQ(value_at(content, {42, 6}), nothing);
    EXPECT_EQ(value_at(content, {38, 10}), nothing);
}

TEST_F(RealOfficeReports, WithoutItsTemplateNothingIsShownAndNoOfficeStarts) {
    office->end();
    platform::set_program_folder(user.path());
    write([] { inlet_report(1, {}); });
    EXPECT_TRUE(outside.boxes.empty());
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_TRUE(office->processes().empty());
}

}  // namespace
}  // namespace gullymark::reports
