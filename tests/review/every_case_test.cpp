#include <algorithm>

#include "review_fixture.h"
#include "support/case_tables.h"

namespace gullymark::review {
namespace {

/// Each row of the tables as a project of one inlet, as the program stores it.
class EveryCase : public testing::TestWithParam<const char*> {
  protected:
    void TearDown() override { platform::outside = {}; }

    static cases::Table table() { return testing_support::read_case_table(GetParam()); }

    static Project solved_row(const cases::Table& rows, std::size_t row) {
        cases::solve_row(rows, rows.rows[row]);
        Project project{.units = engine::UnitSystem};
        project.inlets.push_back(engine::open_inlet);
        return project;
    }
};

TEST_P(EveryCase, ItsOwnResultsFollowFromItsInputs) {
    const auto rows = table();
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
        for (const auto& finding : judge(solved_row(rows, row), {})) {
            EXPECT_NE(finding.rule, "result-differs") << "line " << row + 2 << ": " << finding.text;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Tables, EveryCase, testing::ValuesIn(testing_support::case_tables),
                         testing_support::name_by_table);

struct OrdinaryCase : EveryCase {};

/// The flow is made up to the total by what comes overland, which no solve reads.
TEST_P(OrdinaryCase, HasNothingWrong) {
    const auto rows = table();
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
        auto project = solved_row(rows, row);
        auto& inlet = project.inlets.front();
        const auto number = [&](Column column) { return platform::read_number(inlet.text(column)).number; };
        double others = number(Column::DISCHARGE1);
        if (inlet.text(Column::INLET_LOCATION) == "SUMP") {
            others += number(Column::DISCHARGE2) + number(Column::CARRYOVER1) + number(Column::CARRYOVER2);
            inlet.load(Column::PREINLET1, number(Column::CARRYOVER1) == 0 ? "" : "before");
            inlet.load(Column::PREINLET2, number(Column::CARRYOVER2) == 0 ? "" : "before");
        } else {
            inlet.load(Column::CARRYOVER1, "0.0");
        }
        inlet.load(Column::LDISCHARGE_OVERRIDE, "YES");
        inlet.load(Column::RDISCHARGE_OVERRIDE, "YES");
        inlet.load(Column::OVERLAND_FLOW, platform::number_text(number(Column::TOTAL_DISCHARGE) - others));
        for (const auto& finding : judge(project, {.bypass = "1000000"})) {
            // The inlet before is in no project of one inlet; some solves end without intercepted flow and bypass.
            const bool is_expected = finding.rule == "previous-missing" || finding.rule == "balance-open" ||
                                     (finding.rule == "flow-vanishes" &&
                                      platform::read_number(inlet.text(Column::QINT)).number == 0 &&
                                      inlet.text(Column::QCARRY).empty());
            EXPECT_TRUE(finding.severity != Severity::wrong || is_expected)
                << "line " << row + 2 << ": " << finding.rule << ": " << finding.text;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Tables, OrdinaryCase,
                         testing::Values("solves_ordinary.tsv", "solves_deep.tsv", "solves_help.tsv"),
                         testing_support::name_by_table);

}  // namespace
}  // namespace gullymark::review
