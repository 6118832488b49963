// What holds for every solved inlet of the tables, whatever the numbers are.

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

#include "engine/engine_fixture.h"
#include "engine/hydraulics/grate_types.h"
#include "platform/number_text.h"
#include "tools/case_table.h"

namespace gullymark::engine {
namespace {

using enum Column;

struct SolvedRow {
    std::string name;  // file and line
    cases::Table* table;
    std::vector<std::string> row;
};

std::vector<cases::Table> tables;

/// All rows of all tables.
std::vector<SolvedRow> all_cases() {
    constexpr std::array names = {"ordinary", "boundary", "deep", "unreadable"};
    std::vector<SolvedRow> found;
    tables.clear();
    for (const auto* name : names) {
        tables.push_back(cases::read_table(GULLYMARK_TEST_DIR "/cases/solves_" + std::string(name) + ".tsv"));
    }
    for (std::size_t i = 0; i < tables.size(); ++i) {
        for (std::size_t line = 0; line < tables[i].rows.size(); ++line) {
            found.push_back({std::string(names.at(i)) + ':' + std::to_string(line + 2), &tables[i],
                             tables[i].rows[line]});
        }
    }
    return found;
}

class Identities : public EngineTest {
  protected:
    static double number(Column column) { return platform::read_number(text(column)).number; }
    static bool is_number(Column column) {
        return platform::read_number(text(column)).fault == platform::NumberFault::none;
    }
    /// Half a unit of the last decimal, twice.
    static double rounding() { return by_units(0.001, 0.0001) * 1.000001; }

    template <typename Check>
    void for_every_case(Check&& check) {
        for (const auto& each : all_cases()) {
            cases::load_row(*each.table, each.row);
            SCOPED_TRACE(each.name);
            if (check_and_solve()) {
                check();
            }
        }
    }
};

TEST_F(Identities, OnGradeInterceptedAndBypassedFlowAreTheWholeFlow) {
    int checked = 0;
    for_every_case([&] {
        if (is_number(QINT) && is_number(QCARRY)) {
            EXPECT_NEAR(number(QINT) + number(QCARRY), number(TOTAL_DISCHARGE), rounding());
            ++checked;
        }
    });
    EXPECT_GT(checked, 500);
}

TEST_F(Identities, InASumpTheWholeFlowIsIntercepted) {
    int checked = 0;
    for_every_case([&] {
        if (text(INLET_LOCATION) == "SUMP" && is_number(QINT)) {
            EXPECT_EQ(text(QINT), platform::format_text(text(TOTAL_DISCHARGE), unit_constants.numberFormat));
            EXPECT_EQ(text(QCARRY), "");
            ++checked;
        }
    });
    EXPECT_GT(checked, 500);
}

TEST_F(Identities, OpeningAndGrateOfACombinationTakeTheInterceptedFlow) {
    int checked = 0;
    for_every_case([&] {
        if (is_number(QINTCURB) && is_number(QINTGRATE)) {
            EXPECT_NEAR(number(QINTCURB) + number(QINTGRATE), number(QINT), 1.5 * rounding());
            ++checked;
        }
    });
    EXPECT_GT(checked, 100);
}

TEST_F(Identities, AnEfficiencyLiesBetweenZeroAndOne) {
    int checked = 0;
    for_every_case([&] {
        // A length below 0 takes less than nothing. A grate wider than its depression is credited with more than
        // the frontal flow, and where its kind is unknown it takes that back from the side flow.
        const bool unknown_wide_grate =
            number(GRATEWIDTH) > number(LOCDEPWIDTH) && grate_type(text(GRATETYPE)) == nullptr;
        if (is_number(EFFICIENCY) && number(INLETLENGTH) >= 0.0 && !unknown_wide_grate) {
            EXPECT_GE(number(EFFICIENCY), 0.0);
            EXPECT_LE(number(EFFICIENCY), 1.0);
            ++checked;
        }
        for (const auto column : {FFLOWEFF, SFLOWEFF}) {
            if (is_number(column)) {
                EXPECT_GE(number(column), 0.0);
                EXPECT_LE(number(column), 1.0);
            }
        }
    });
    EXPECT_GT(checked, 500);
}

TEST_F(Identities, ASpreadBeyondTheGutterNeverExceedsSixTimesTheAllowableOne) {
    int checked = 0;
    for_every_case([&] {
        const Column spread = text(INLET_LOCATION) == "SUMP" ? GUTTERSPREAD : OPENSPREAD;
        const double width =
            std::max(number(GUTWIDTH),
                     text(INLET_TYPE) == "Combination Curb and Grate Inlet" ? number(GRATEWIDTH) : 0.0);
        if (is_number(spread) && number(GUTWIDTH) > 0.0 && number(GUTXSLOPE) > 0.0 &&
            number(spread) > width) {
            EXPECT_LE(number(spread), 6.0 * number(ALLOWABLE_SPREAD) + rounding());
            ++checked;
        }
    });
    EXPECT_GT(checked, 500);
}

TEST_F(Identities, ASolveLeavesNothingBehindForTheNext) {
    // All inlets in any order, of all kinds and both unit systems in turn, each upon what the one before
    // left: the constants of the engine are those of another kind, or none at all.
    auto shuffled = all_cases();
    std::mt19937 random{7};  // the same order in every run
    for (int round = 0; round < 3; ++round) {
        std::shuffle(shuffled.begin(), shuffled.end(), random);
        for (const auto& each : shuffled) {
            const UnitConstants before = unit_constants;
            cases::load_row(*each.table, each.row);
            const std::string format = unit_constants.numberFormat;
            unit_constants = round == 0 ? UnitConstants{} : before;
            unit_constants.numberFormat = format;
            check_and_solve();
            for (std::size_t i = 0; i < each.table->columns.size(); ++i) {
                const auto& heading = each.table->columns[i];
                if (const auto column = column_named(heading.substr(1)); heading.front() == '=' && column) {
                    EXPECT_EQ(text(*column), each.row[i]) << each.name << ' ' << heading;
                }
            }
        }
    }
}

}  // namespace
}  // namespace gullymark::engine
