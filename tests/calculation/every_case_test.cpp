// The sheets of the kept inlets: all ten kinds in both unit systems.

#include <cstdlib>
#include <map>
#include <set>

#include "calculation/as_text.h"
#include "calculation_fixture.h"
#include "engine/results.h"
#include "support/case_tables.h"

namespace gullymark::calculation {
namespace {

using testing::IsEmpty;

/// All that a solve of the open inlet may change.
struct State {
    std::vector<std::optional<std::string>> texts;
    bool changed = false;
    void (*on_first_change)() = nullptr;
    bool solved = false;
    std::string units;
    std::vector<float> constants;
    std::string number_format;
    std::vector<engine::TraceLine>* trace = nullptr;

    static State now() {
        const auto& constants = engine::unit_constants;
        State state{
            .changed = engine::open_inlet.changed(),
            .on_first_change = engine::open_inlet.on_first_change,
            .solved = engine::DataSolved,
            .units = engine::UnitSystem,
            .constants = {constants.gutterFlowConstant, constants.sideFlowConstant,
                          constants.curbLengthConstant, constants.manningConstant, constants.depthFactor,
                          constants.gravity, static_cast<float>(constants.curbLengthLimit),
                          static_cast<float>(constants.weirCoefficient)},
            .number_format = constants.numberFormat,
            .trace = engine::onlooker.trace};
        for (const auto column : engine::all_columns) {
            state.texts.push_back(engine::open_inlet.value(column));
        }
        return state;
    }
    bool operator==(const State&) const = default;
};

void count_a_change() {
    ADD_FAILURE() << "the open inlet was told of a change";
}

class EveryCase : public CalculationTest, public testing::WithParamInterface<const char*> {
  protected:
    std::map<std::string, int> kinds;  // with their units

    static void expect_row_is_whole(const Row& row) {
        SCOPED_TRACE(std::to_string(row.step) + ' ' + row.symbol + " = " + row.formula);
        switch (row.kind) {
            case Row::Kind::formula:
            case Row::Kind::detail:
                EXPECT_NE(row.source, "");
                EXPECT_NE(row.meaning, "");
                EXPECT_TRUE(!row.formula.empty() || !row.value.empty());
                [[fallthrough]];
            case Row::Kind::input:
            case Row::Kind::result:
            case Row::Kind::search:
                EXPECT_NE(row.symbol, "");
                EXPECT_NE(row.value, "");
                EXPECT_NE(row.meaning, "");
                break;
            case Row::Kind::constant:
                EXPECT_NE(row.meaning, "");
                EXPECT_NE(row.source, "");
                EXPECT_NE(row.value, "");
                break;
            case Row::Kind::condition:
                EXPECT_NE(row.formula, "");
                EXPECT_TRUE(row.value == "yes" || row.value == "no");
                break;
            case Row::Kind::message:
            case Row::Kind::note:
                EXPECT_NE(row.remark, "");
                break;
        }
    }

    static void expect_document_is_whole(const Document& document) {
        std::set<int> departures;
        for (const auto& section : document.sections) {
            EXPECT_NE(section.heading, "");
            EXPECT_THAT(section.rows, testing::Not(IsEmpty())) << section.heading;
            for (const auto& row : section.rows) {
                expect_row_is_whole(row);
                departures.insert(row.departure);
            }
        }
        departures.erase(0);
        EXPECT_EQ(departures.size(), document.departures.size());
        EXPECT_TRUE(departures.empty() ||
                    *departures.rbegin() == static_cast<int>(document.departures.size()));
    }

    /// Every statement of the sheet that ran is told: in its order, or with what it stored.
    static void expect_all_steps(const Document& document) {
        std::vector<engine::TraceLine> trace;
        const engine::InletRecord before = engine::open_inlet;
        engine::open_inlet.on_first_change = nullptr;
        engine::onlooker = {.trace = &trace};
        engine::check_and_solve();
        engine::onlooker = {};
        engine::open_inlet = before;
        std::set<int> ran;
        for (const auto& line : trace) {
            ran.insert(line.step);
        }
        std::set<int> told;
        int last = 0;
        for (const auto& section : document.sections) {
            for (const auto& row : section.rows) {
                told.insert(row.step);
                if (row.step != 0 && row.kind != Row::Kind::result) {
                    EXPECT_GT(row.step, last);
                    last = row.step;
                }
            }
        }
        told.erase(0);
        // A result that is stored twice keeps the step of the last time.
        EXPECT_EQ(told, ran);
    }

    /// The last lines tell what is stored, to the character.
    static void expect_results(const Document& document) {
        std::map<std::string, std::string> told;
        for (const auto& row : rows_of_kind(document, Row::Kind::result)) {
            told[row.symbol] = row.value;
        }
        for (const Column column : engine::all_result_columns()) {
            const std::string name(engine::column_name(column));
            EXPECT_EQ(told[name], text(column)) << name;
        }
    }

    void expect_sheet() {
        engine::open_inlet.on_first_change = count_a_change;
        engine::open_inlet.begin_new_changes();
        boxes.clear();
        const State before = State::now();
        const Document document = work_out_open_inlet();
        EXPECT_TRUE(State::now() == before);
        EXPECT_THAT(boxes, IsEmpty());
        expect_document_is_whole(document);
        if (document.warnings.empty()) {
            expect_results(document);
            expect_all_steps(document);
            ++kinds[text(Column::INLET_TYPE) + ' ' + text(Column::INLET_LOCATION) + ' ' + engine::UnitSystem];
        }
        const std::string told = as_text(document);
        EXPECT_NE(told.find("Oak Street"), std::string::npos);
    }
};

TEST_P(EveryCase, HasASheetThatIsWholeAndLeavesAllAsItWas) {
    const auto table = testing_support::read_case_table(GetParam());
    const std::size_t stride = std::getenv("GULLYMARK_ALL_ROWS") != nullptr || table.rows.size() < 20 ? 1 : 7;
    for (std::size_t i = 0; i < table.rows.size(); i += stride) {
        SCOPED_TRACE(std::string(GetParam()) + ':' + std::to_string(i + 2));
        cases::solve_row(table, table.rows[i]);
        engine::DataSolved = i % 2 == 0;
        expect_sheet();
    }
    const bool has_all_kinds = std::string(GetParam()) == "solves_ordinary.tsv";
    EXPECT_EQ(kinds.size(), has_all_kinds ? 20U : kinds.size());
    EXPECT_THAT(kinds, testing::Not(IsEmpty()));
}

INSTANTIATE_TEST_SUITE_P(Tables, EveryCase, testing::ValuesIn(testing_support::case_tables),
                         testing_support::name_by_table);

}  // namespace
}  // namespace gullymark::calculation
