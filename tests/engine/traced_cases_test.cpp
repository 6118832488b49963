// What a trace prints is read and worked out anew, over the tables of solved inlets: every formula comes to the value of its
// step, every condition to its answer, every search is put back into its equation.

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <map>
#include <utility>

#include "engine/engine_fixture.h"
#include "engine/hydraulics/grate_types.h"
#include "engine/written_formula.h"
#include "platform/number_text.h"
#include "support/case_tables.h"

namespace gullymark::engine {
namespace {

using formula::Spelling;
using formula::Style;
using formula::Working;
using written::Functions;

constexpr double closeness = 1e-12;
constexpr double six_digits = 5.1e-6;

bool is_close(double a, double b, double share) {
    return std::fabs(a - b) <= share * std::max(std::fabs(a), std::fabs(b));
}

/// Every row of a short table, or one of so many: GULLYMARK_ALL_ROWS asks for all of them.
std::size_t stride(const cases::Table& table) {
    constexpr std::size_t short_table = 20;
    return std::getenv("GULLYMARK_ALL_ROWS") != nullptr || table.rows.size() < short_table ? 1 : 5;
}

/// What the symbols of a sheet stand for as its steps run.
class Meanings {
  public:
    explicit Meanings(InletRecord inlet) : inlet_(std::move(inlet)) {}

    void set(const TraceLine& line) {
        if (line.kind == TraceLine::Kind::text) {
            inlet_.load(*column_named(line.symbol), line.text);
        } else if (line.kind == TraceLine::Kind::number) {
            numbers_[std::string(line.symbol)] = line.number;
        }
    }
    void begin_workings() { workings_.clear(); }
    void set(const Working& working) {
        const bool has_value = working.kind == Working::Kind::value && working.fault == Fault::none;
        if (has_value || working.kind == Working::Kind::search) {
            workings_[std::string(working.symbol)] = working.number;
        }
    }

    /// The word, in all digits, that a formula must have for a symbol; what nobody has set is 0, but for a constant.
    [[nodiscard]] bool fits(const std::string& symbol, const std::string& word) const {
        if (const auto column = column_named(symbol)) {
            const auto& text = inlet_.text(*column);
            const auto read = platform::read_number(text);
            return word == '"' + text + '"' ||
                   (read.fault == platform::NumberFault::none && written::number_of(word) == read.number);
        }
        const auto fit = coefficients();
        for (const auto* known : {&workings_, &numbers_, &fit, &constants()}) {
            if (const auto found = known->find(symbol); found != known->end()) {
                return word == "?" || written::number_of(word) == found->second;
            }
        }
        return word == "0";
    }

  private:
    /// Of the fits of the grate.
    [[nodiscard]] std::map<std::string, double> coefficients() const {
        const auto* const grate = grate_type(inlet_.text(Column::GRATETYPE));
        if (grate == nullptr) {
            return {};
        }
        return {{"Vmax", grate->Vmax}, {"b1", grate->b1}, {"b0", grate->b0},
                {"c2", grate->c2},     {"c1", grate->c1}, {"c0", grate->c0}};
    }
    static const std::map<std::string, double>& constants() {
        static std::map<std::string, double> known;
        known = {{"K", unit_constants.gutterFlowConstant},
                 {"K_s", unit_constants.sideFlowConstant},
                 {"K_L", unit_constants.curbLengthConstant},
                 {"M", unit_constants.manningConstant},
                 {"g", unit_constants.gravity},
                 {"depthFactor", unit_constants.depthFactor},
                 {"curbLengthLimit", unit_constants.curbLengthLimit},
                 {"Cw", unit_constants.weirCoefficient},
                 {"Cg", by_units(3.0F, 1.6F)},
                 {"pi", 3.14159265358979}};
        return known;
    }

    InletRecord inlet_;
    std::map<std::string, double> numbers_;
    std::map<std::string, double> workings_;
};

class TracedCases : public EngineTest, public testing::WithParamInterface<const char*> {
  protected:
    std::size_t formulas = 0;
    std::size_t conditions = 0;
    std::size_t searches = 0;
    std::size_t results = 0;

    /// Solves a row with a trace and without: both give the same, to the character.
    static std::vector<TraceLine> traced_solve(const cases::Table& table, const std::vector<std::string>& row,
                                               std::vector<TraceLine>& roundings) {
        std::vector<TraceLine> trace;
        onlooker = {.trace = &trace, .roundings = &roundings};
        const auto traced = cases::solve_row(table, row);
        onlooker = {};
        EXPECT_EQ(traced, cases::solve_row(table, row));
        return trace;
    }

    /// The three forms of a formula are one: signs alike, symbols that stand for their numbers, and six digits of each.
    static void expect_forms_agree(const Spelling& formula, const Meanings& meanings) {
        const auto symbols = written::words_of(text_of(formula, Style::symbols));
        const auto exact = written::words_of(text_of(formula, Style::exact));
        const auto numbers = written::words_of(text_of(formula, Style::numbers));
        ASSERT_EQ(symbols.size(), exact.size());
        ASSERT_EQ(numbers.size(), exact.size());
        for (std::size_t i = 0; i < exact.size(); ++i) {
            const bool is_number =
                std::isdigit(static_cast<unsigned char>(exact[i].back())) != 0 || exact[i].front() == '"';
            if (symbols[i] != exact[i] && !is_plain(symbols[i])) {
                EXPECT_TRUE(meanings.fits(symbols[i], exact[i])) << symbols[i] << " is not " << exact[i];
            } else if (!is_number) {
                EXPECT_EQ(symbols[i], exact[i]);
            }
            if (numbers[i] != exact[i]) {
                EXPECT_TRUE(
                    is_close(written::number_of(numbers[i]), written::number_of(exact[i]), six_digits))
                    << numbers[i] << " is not " << exact[i];
            }
        }
    }
    /// A number that stands in a formula as such.
    static bool is_plain(const std::string& word) {
        return std::isdigit(static_cast<unsigned char>(word.front())) != 0 || word.front() == '-';
    }

    void expect_number(const Spelling& formula, double number, Fault fault, const Functions& functions) {
        ++formulas;
        const std::string text = text_of(formula, Style::exact);
        try {
            const auto value = written::evaluate(text, functions);
            if (!std::holds_alternative<double>(value)) {
                throw written::NoValue{};
            }
            ASSERT_EQ(fault, Fault::none) << text;
            EXPECT_TRUE(is_close(std::get<double>(value), number, closeness))
                << text << " is " << std::get<double>(value) << " and not " << number;
        } catch (const written::NoValue&) {
            EXPECT_NE(fault, Fault::none) << text;
        } catch (const written::NoFormula& wrong) {
            ADD_FAILURE() << text << ": " << wrong.what;
        }
    }

    void expect_answer(const Spelling& condition, bool holds, Fault fault) {
        ++conditions;
        const std::string text = text_of(condition, Style::exact);
        try {
            const auto value = written::evaluate(text);
            ASSERT_EQ(fault, Fault::none) << text;
            ASSERT_TRUE(std::holds_alternative<bool>(value)) << text;
            EXPECT_EQ(std::get<bool>(value), holds) << text;
        } catch (const written::NoValue&) {
            EXPECT_NE(fault, Fault::none) << text;
        } catch (const written::NoFormula& wrong) {
            ADD_FAILURE() << text << ": " << wrong.what;
        }
    }

    void expect_text(const TraceLine& line, const Functions& functions) {
        const std::string text = text_of(line.formula, Style::exact);
        if (line.fault == Fault::none && text.front() == '"') {
            EXPECT_EQ(text, '"' + line.text + '"');
            return;
        }
        const double number = line.fault == Fault::none ? written::number_of(line.text) : 0.0;
        expect_number(line.formula, number, line.fault, functions);
    }

    /// An answer keeps to its bounds, and what it leaves of the flow to the tolerance.
    void expect_put_back(const Working& search, const std::vector<Working>& workings) {
        ++searches;
        EXPECT_GT(search.passes, 0U);
        const auto residual = std::find_if(workings.begin(), workings.end(),
                                           [](const Working& each) { return each.symbol == "residual"; });
        ASSERT_NE(residual, workings.end());
        if (search.tolerance == 0.0) {
            EXPECT_NE(search.meaning, "");
            return;
        }
        EXPECT_GE(search.number, search.low);
        EXPECT_LE(search.number, search.high);
        EXPECT_EQ(residual->fault, Fault::none);
        // The march in a sump ends at the first depth that is not too shallow, which may be well beyond.
        const double left = search.symbol == "d" ? residual->number : std::fabs(residual->number);
        EXPECT_LE(left, search.tolerance);
    }

    void expect_working(const Working& working, const std::vector<Working>& workings,
                        const Meanings& meanings) {
        switch (working.kind) {
            case Working::Kind::value:
                expect_forms_agree(working.formula, meanings);
                expect_number(working.formula, working.number, working.fault, {});
                break;
            case Working::Kind::condition:
                expect_forms_agree(working.formula, meanings);
                expect_answer(working.formula, working.number != 0.0, Fault::none);
                break;
            case Working::Kind::search:
                expect_put_back(working, workings);
                break;
            case Working::Kind::note:
                EXPECT_NE(working.text, "");
                break;
        }
    }

    /// What the lines of a function came to: the answer of its search, the last spread, or 0 where it tells why.
    static Functions functions_of(const std::vector<Working>& workings) {
        if (workings.empty()) {
            return {};
        }
        const auto answers = [](const Working& each) {
            return each.kind == Working::Kind::search ||
                   (each.kind == Working::Kind::value && (each.symbol == "T" || each.symbol == "T_w"));
        };
        if (workings.back().kind == Working::Kind::note) {
            return with_value(0.0);
        }
        const auto answer = std::find_if(workings.rbegin(), workings.rend(), answers);
        return answer == workings.rend() ? Functions{} : with_value(answer->number);
    }
    static Functions with_value(double number) {
        return {{"gutter_spread", number}, {"ditch_depth", number}, {"sump_depth", number}};
    }

    void expect_line(const TraceLine& line, Meanings& meanings) {
        SCOPED_TRACE("step " + describe(line));
        meanings.begin_workings();
        for (const auto& working : line.workings) {
            SCOPED_TRACE("working " + std::string(working.symbol));
            expect_working(working, line.workings, meanings);
            meanings.set(working);
        }
        ASSERT_NE(line.formula.kind, Spelling::Kind::nothing) << "prints no formula";
        expect_forms_agree(line.formula, meanings);
        const Functions functions = functions_of(line.workings);
        switch (line.kind) {
            case TraceLine::Kind::condition:
                expect_answer(line.formula, line.number != 0.0, line.fault);
                break;
            case TraceLine::Kind::number:
                expect_number(line.formula, line.number, line.fault, functions);
                break;
            case TraceLine::Kind::text:
                expect_text(line, functions);
                break;
        }
        meanings.set(line);
    }

    /// Each stored result is what its last step wrote, rounded; and every rounded one is told.
    void expect_results(const std::vector<TraceLine>& trace, const std::vector<TraceLine>& roundings) {
        std::map<std::string, std::string> last;
        for (const auto& line : trace) {
            if (line.kind == TraceLine::Kind::text) {
                last[std::string(line.symbol)] = line.text;
            }
        }
        for (const auto& rounding : roundings) {
            SCOPED_TRACE(describe(rounding));
            const std::string symbol(rounding.symbol);
            const auto column = *column_named(symbol);
            const bool four = column_unit(column) == Unit::slope || column == Column::FFLOWEFF ||
                              column == Column::SFLOWEFF || UnitSystem != "ENGLISH";
            EXPECT_EQ(text_of(rounding.formula, Style::symbols),
                      "round(" + symbol + (four ? ", 4)" : ", 3)"));
            expect_number(rounding.formula, written::number_of(rounding.text), Fault::none, {});
            EXPECT_EQ(rounding.text,
                      written::rounded_text(written::number_of(last.at(symbol)), four ? 4 : 3));
            EXPECT_EQ(rounding.text, text(column));
            ++results;
        }
    }
};

TEST_P(TracedCases, EveryPrintedFormulaComesToWhatItsStepDid) {
    const auto table = testing_support::read_case_table(GetParam());
    for (std::size_t i = 0; i < table.rows.size(); i += stride(table)) {
        SCOPED_TRACE(std::string(GetParam()) + ':' + std::to_string(i + 2));
        cases::load_row(table, table.rows[i]);
        Meanings meanings(open_inlet);
        std::vector<TraceLine> roundings;
        const auto trace = traced_solve(table, table.rows[i], roundings);
        for (const auto& line : trace) {
            expect_line(line, meanings);
        }
        expect_results(trace, roundings);
    }
    RecordProperty("formulas", static_cast<int>(formulas));
    EXPECT_GT(formulas, 100U);
    EXPECT_GT(conditions, 50U);
    EXPECT_GT(results, 20U);
    if (std::getenv("GULLYMARK_ALL_ROWS") != nullptr) {
        std::cout << GetParam() << ": " << formulas << " formulas, " << conditions << " conditions, "
                  << searches << " searches, " << results << " results\n";
    }
}

INSTANTIATE_TEST_SUITE_P(Tables, TracedCases, testing::ValuesIn(testing_support::case_tables),
                         testing_support::name_by_table);

}  // namespace
}  // namespace gullymark::engine
