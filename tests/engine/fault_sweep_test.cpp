// Every step of every solver is made to fault once: its target alone keeps its value, and the solve goes on.

#include <set>

#include "engine/engine_fixture.h"
#include "platform/number_text.h"
#include "tools/case_table.h"

namespace gullymark::engine {
namespace {

struct Sheet {
    const char* location;
    const char* type;
    int steps;           // numbered from 1 on
    std::set<int> last;  // the last step, and those at which a solve may end before: a refusal, a short cut
    std::set<int> unreached;  // those that no inlet comes by
    bool ends_at_first_fault = false;
};

const char* const on_grade = "CONTINUOUS GRADE";

const std::vector<Sheet> sheets = {
    // With finite slopes the depression is 0 wherever the gutter width is.
    {on_grade, "Curb Inlet", 66, {66}, {21, 22}},
    {on_grade, "Slotted Inlet", 66, {66}, {21, 22}},
    {on_grade, "Grate Inlet", 76, {76}, {}},
    {on_grade, "Combination Curb and Grate Inlet", 87, {20, 87}, {}},
    {on_grade, "Grate Inlet in a Ditch", 53, {11, 53}, {}},
    {"SUMP", "Curb Inlet", 63, {63}, {}},
    {"SUMP", "Slotted Inlet", 45, {45}, {}},
    // No input that passes the test of step 28 makes the spread negative.
    {"SUMP", "Grate Inlet", 57, {28, 57}, {49}},
    {"SUMP", "Combination Curb and Grate Inlet", 64, {64}, {}},
    {"SUMP", "Grate Inlet in a Ditch", 19, {5, 19}, {}, true},
};

void PrintTo(const Sheet& sheet, std::ostream* out) {
    *out << sheet.type << ", " << sheet.location;
}

/// The inlets of the tables that a sheet solves, and some with what the tables do not hold.
std::vector<InletRecord> inlets_of(const Sheet& sheet, const char* units) {
    std::vector<InletRecord> inlets;
    for (const auto* name : {"ordinary", "boundary", "deep", "unreadable"}) {
        const auto table =
            cases::read_table(GULLYMARK_TEST_DIR "/cases/solves_" + std::string(name) + ".tsv");
        for (const auto& row : table.rows) {
            if (cases::cell(table, row, "UNITS") == units &&
                cases::cell(table, row, "INLET_TYPE") == sheet.type &&
                cases::cell(table, row, "INLET_LOCATION") == sheet.location) {
                cases::load_row(table, row);
                inlets.push_back(open_inlet);
            }
        }
    }
    InletRecord steep = inlets.front();
    steep.load(Column::LONGSLOPE, "0.9");
    steep.load(Column::MANNINGS, "0.005");
    steep.load(Column::GRATETYPE, "Reticuline");
    for (const auto* length : {"0.3", "4.4", "6", "1.5", "30"}) {
        steep.load(Column::INLETLENGTH, length);
        inlets.push_back(steep);
    }
    InletRecord wide = inlets.front();
    wide.load(Column::GRATEWIDTH, "40");
    wide.load(Column::LOCDEPWIDTH, "0.5");
    inlets.push_back(wide);
    wide.load(Column::GUTXSLOPE, wide.text(Column::PAVXSLOPE));
    inlets.push_back(wide);
    InletRecord blank = inlets.front();
    blank.load(Column::INLETXSLOPE, "");
    blank.load(Column::GRATEPERCLOG, "");
    inlets.push_back(blank);
    return inlets;
}

class FaultSweep : public EngineTest, public testing::WithParamInterface<Sheet> {
  protected:
    std::vector<TraceLine> solve(const InletRecord& inlet, int tripped_step) {
        boxes.clear();
        open_inlet = inlet;
        std::vector<TraceLine> trace;
        onlooker = {.trace = &trace, .tripped_step = tripped_step};
        check_and_solve();
        onlooker = {};
        return trace;
    }

    /// The line of the step, and that before it for the same target; null where there is none.
    struct Found {
        const TraceLine* line = nullptr;
        const TraceLine* before = nullptr;
    };
    static Found find(const std::vector<TraceLine>& trace, int step) {
        Found found;
        for (const auto& line : trace) {
            if (line.step == step) {
                found.line = &line;
                for (const auto& earlier : trace) {
                    if (&earlier == &line) {
                        return found;
                    }
                    if (!line.symbol.empty() && earlier.symbol == line.symbol) {
                        found.before = &earlier;
                    }
                }
            }
        }
        return found;
    }

    static bool same(const TraceLine& a, const TraceLine& b) {
        return a.step == b.step && a.fault == b.fault && a.number == b.number && a.text == b.text;
    }

    void expect_target_kept(const InletRecord& inlet, const std::vector<TraceLine>& plain,
                            const std::vector<TraceLine>& tripped, int step) {
        const auto [line, before] = find(tripped, step);
        ASSERT_NE(line, nullptr);
        EXPECT_EQ(line->fault, Fault::tripped);
        switch (line->kind) {
            case TraceLine::Kind::condition:
                EXPECT_EQ(line->number, GetParam().ends_at_first_fault ? 0.0 : 1.0);
                break;
            case TraceLine::Kind::text:
                EXPECT_EQ(line->text, before != nullptr ? before->text : text_at_start(inlet, *line));
                break;
            case TraceLine::Kind::number:
                EXPECT_EQ(line->number, before != nullptr ? before->number : number_at_start(plain, *line));
                break;
        }
        // What ran before is untouched, and nothing else was tripped.
        for (std::size_t i = 0; &tripped[i] != line; ++i) {
            EXPECT_TRUE(same(tripped[i], plain[i])) << "step " << tripped[i].step;
        }
        for (const auto& other : tripped) {
            EXPECT_TRUE(&other == line || other.fault != Fault::tripped) << "step " << other.step;
        }
    }

    static std::string text_at_start(const InletRecord& inlet, const TraceLine& line) {
        const Column column = *column_named(line.symbol);
        return column >= Column::OPENSPREAD ? "" : inlet.text(column);
    }

    /// A quantity starts at 0, but the discharge of curbs and slots on grade at that of the solve before.
    static double number_at_start(const std::vector<TraceLine>& plain, const TraceLine& line) {
        const bool outlives = GetParam().location == std::string_view(on_grade) &&
                              (GetParam().type == std::string_view("Curb Inlet") ||
                               GetParam().type == std::string_view("Slotted Inlet"));
        return outlives && line.step == 1 ? plain.front().number : 0.0;
    }

    void expect_solve_went_on(const std::vector<TraceLine>& tripped, int step) {
        if (GetParam().ends_at_first_fault) {
            EXPECT_EQ(tripped.back().step, step);
            EXPECT_EQ(boxes, std::vector{refusal_warning});
            return;
        }
        EXPECT_TRUE(GetParam().last.contains(tripped.back().step)) << "ended at step " << tripped.back().step;
        for (const auto column : all_columns) {
            if (column >= Column::OPENSPREAD && column < Column::INLETPERF) {
                const auto& result = text(column);
                EXPECT_EQ(result, platform::format_text(result, decimals(column) == 3 ? "0.000" : "0.0000"))
                    << column_name(column) << " is not formatted";
            }
        }
    }

    static int decimals(Column column) {
        const bool always_four =
            column_unit(column) == Unit::slope || column == Column::FFLOWEFF || column == Column::SFLOWEFF;
        return always_four || UnitSystem != "ENGLISH" ? 4 : 3;
    }
};

TEST_P(FaultSweep, EveryStepCanFaultAlone) {
    std::set<int> tripped_once;
    for (const auto* units : {"ENGLISH", "METRIC"}) {
        use_units(units);
        std::set<int> done;
        for (const auto& inlet : inlets_of(GetParam(), units)) {
            const auto plain = solve(inlet, 0);
            for (const auto& line : plain) {
                if (!done.insert(line.step).second) {
                    continue;
                }
                EXPECT_TRUE(line.step >= 1 && line.step <= GetParam().steps) << line.step;
                SCOPED_TRACE(std::string(units) + " step " + std::to_string(line.step) + ' ' +
                             std::string(line.symbol));
                EXPECT_NE(text_of(line.formula, formula::Style::symbols), "") << "prints no formula";
                EXPECT_NE(text_of(line.formula, formula::Style::numbers), "") << "prints no formula";
                solve(inlet, 0);
                const auto tripped = solve(inlet, line.step);
                expect_target_kept(inlet, plain, tripped, line.step);
                expect_solve_went_on(tripped, line.step);
            }
        }
        tripped_once.merge(done);
    }
    for (int step = 1; step <= GetParam().steps; ++step) {
        EXPECT_NE(tripped_once.contains(step), GetParam().unreached.contains(step)) << "step " << step;
    }
}

TEST_P(FaultSweep, StepsAreNumberedInTheOrderInWhichTheyRun) {
    for (const auto* units : {"ENGLISH", "METRIC"}) {
        use_units(units);
        for (const auto& inlet : inlets_of(GetParam(), units)) {
            int before = 0;
            for (const auto& line : solve(inlet, 0)) {
                EXPECT_LT(before, line.step) << units;
                before = line.step;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Solvers, FaultSweep, testing::ValuesIn(sheets), [](const auto& sheet) {
    std::string name;
    for (const char c : std::string(sheet.param.type) + sheet.param.location) {
        name += c == ' ' ? "" : std::string(1, c);
    }
    return name;
});

}  // namespace
}  // namespace gullymark::engine
