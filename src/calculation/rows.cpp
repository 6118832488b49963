#include "calculation/rows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "calculation/typeset.h"
#include "engine/results.h"
#include "engine/sources.h"
#include "engine/units.h"
#include "platform/number_text.h"

namespace gullymark::calculation {
namespace {

using engine::Column;
using engine::Fault;
using engine::Source;
using engine::TraceLine;
using engine::formula::Spelling;
using engine::formula::Style;
using engine::formula::Working;

struct ConstantMeaning {
    std::string_view name;
    std::string_view meaning;
};

constexpr auto constant_meanings = std::to_array<ConstantMeaning>({
    {"K", "gutter flow constant"},
    {"K_s", "side flow constant of a grate"},
    {"K_L", "curb length constant"},
    {"M", "Manning constant"},
    {"g", "gravity"},
    {"depthFactor", "from a length to a depth"},
    {"curbLengthLimit", "longest opening that counts as depressed"},
    {"Cw", "weir coefficient"},
    {"Cg", "weir coefficient of the grate"},
    {"pi", "half turn in radians"},
});

std::string printed(const Spelling& spelling, Style style) {
    return typeset(text_of(spelling, style));
}

std::string unit_of(engine::Unit unit) {
    return std::string(engine::unit_text(unit));
}

std::string number_of(double number) {
    return typeset(engine::formula::digits_of(number, false, Style::numbers));
}

bool is_leaf(const Spelling& spelling) {
    return spelling.kind == Spelling::Kind::number || spelling.kind == Spelling::Kind::words;
}

/// A step that takes the number of a column.
bool only_reads(const TraceLine& line) {
    return line.kind == TraceLine::Kind::number && is_leaf(line.formula) && line.formula.column;
}

/// A step that puts a quantity into a column as it is: what is stored tells it.
bool only_stores(const TraceLine& line) {
    return line.kind == TraceLine::Kind::text && line.fault == Fault::none &&
           line.formula.kind == Spelling::Kind::number && !line.formula.symbol.empty() &&
           !line.formula.column;
}

/// The last step that wrote the column.
const TraceLine* last_step_of(const SolvedCopy& solved, std::string_view column) {
    const auto found = std::find_if(solved.trace.rbegin(), solved.trace.rend(), [&](const TraceLine& line) {
        return line.kind == TraceLine::Kind::text && line.fault == Fault::none && line.symbol == column;
    });
    return found == solved.trace.rend() ? nullptr : &*found;
}

/// A step whose result the end of the sheet tells: no later step writes there, and no solver took it back.
bool is_told_as_a_result(const SolvedCopy& solved, const TraceLine& line) {
    return only_stores(line) && solved.solved && last_step_of(solved, line.symbol) == &line &&
           !solved.inlet.text(*engine::column_named(line.symbol)).empty();
}

/// The column's text as it was read.
const Spelling* find_reading(const Spelling& spelling, Column column) {
    if (spelling.column == column) {
        return &spelling;
    }
    for (const auto& part : spelling.parts) {
        if (const auto* const found = find_reading(part, column)) {
            return found;
        }
    }
    return nullptr;
}

std::string caption_of(Column column, const Caption& caption) {
    const std::string told = caption ? caption(column) : "";
    return told.empty() ? std::string(engine::column_meaning(column)) : told;
}

Row input_row(Column column, const std::string& text, const Caption& caption) {
    const std::string name(engine::column_name(column));
    return {.kind = Row::Kind::input,
            .symbol = name,
            .formula = name,
            .value = text.empty() ? "blank" : shortened(text),
            .unit = text.empty() ? "" : unit_of(engine::column_unit(column)),
            .meaning = caption_of(column, caption)};
}

/// Writes the steps one after the other.
class Writer {
  public:
    Writer(const SolvedCopy& solved, const std::string& sheet, const Caption& caption)
        : solved_(solved), sheet_(sheet), caption_(caption) {
        for (const auto& line : solved.trace) {
            if (only_reads(line)) {
                read_by_a_step_.insert(*line.formula.column);
            }
            targets_.insert(std::string(line.symbol));
        }
    }

    WrittenSteps write() {
        for (std::size_t i = 0; i < solved_.trace.size(); ++i) {
            const auto& line = solved_.trace[i];
            if (written_.sections.empty() || written_.sections.back().heading != line.heading) {
                write_boxes(i);  // what was told behind the last step stands under its heading
                written_.sections.push_back({.heading = std::string(line.heading), .rows = {}});
            } else {
                write_boxes(i);
            }
            write_line(line);
        }
        write_boxes(solved_.trace.size() + 1);
        return std::move(written_);
    }

  private:
    void add(Row row) { written_.sections.back().rows.push_back(std::move(row)); }

    /// The boxes that were shown before so many steps were through.
    void write_boxes(std::size_t steps) {
        while (boxes_ < solved_.boxes.size() && solved_.boxes[boxes_].behind < steps) {
            if (written_.sections.empty()) {
                written_.sections.push_back({.heading = "Solve", .rows = {}});
            }
            add({.kind = Row::Kind::message, .remark = solved_.boxes[boxes_++].text});
        }
    }

    [[nodiscard]] bool is_shown_as_box(const std::string& text) const {
        return std::any_of(solved_.boxes.begin(), solved_.boxes.end(),
                           [&](const ShownBox& box) { return box.text == text; });
    }

    /// Columns that no step reads by itself are told where they are used first.
    void write_readings(const Spelling& formula) {
        for (const Column column : columns_in(formula)) {
            if (!read_by_a_step_.contains(column) && told_.insert(column).second) {
                add(input_row(column, find_reading(formula, column)->text, caption_));
            }
        }
    }

    void cite(Row& row, const Source* source) {
        if (source == nullptr) {
            return;
        }
        row.source = source->publication;
        if (const auto departure = engine::departure_of(*source); !departure.empty()) {
            row.departure = note_number(std::string(departure));
        }
    }

    int note_number(const std::string& departure) {
        auto& notes = written_.departures;
        auto found = std::find(notes.begin(), notes.end(), departure);
        if (found == notes.end()) {
            notes.push_back(departure);
            found = notes.end() - 1;
        }
        return static_cast<int>(found - notes.begin()) + 1;
    }

    void write_constants(const Spelling& spelling) {
        const std::string name(spelling.symbol);
        const Source* const source = engine::source_of_constant(spelling.symbol);
        if (source != nullptr && !targets_.contains(name) && constants_.insert(name).second) {
            Row row{.kind = Row::Kind::constant,
                    .symbol = name,
                    .value = engine::formula::digits_of(spelling.number, spelling.is_single, Style::numbers)};
            for (const auto& each : constant_meanings) {
                row.meaning = each.name == name ? each.meaning : row.meaning;
            }
            cite(row, source);
            written_.constants.push_back(std::move(row));
        }
        for (const auto& part : spelling.parts) {
            write_constants(part);
        }
    }

    void write_line(const TraceLine& line) {
        write_constants(line.formula);
        if (is_told_as_a_result(solved_, line)) {
            return;
        }
        if (only_reads(line)) {
            write_input(line);
            return;
        }
        write_readings(line.formula);
        if (line.kind == TraceLine::Kind::condition) {
            write_condition(line);
        } else {
            write_formula(line);
        }
        write_workings(line);
    }

    void write_input(const TraceLine& line) {
        const Column column = *line.formula.column;
        Row row = input_row(column, line.formula.text, caption_);
        row.step = line.step;
        row.symbol = line.symbol;
        told_.insert(column);
        if (line.fault != Fault::none) {
            row.remark = abandoned(line);
        }
        add(std::move(row));
    }

    static std::string abandoned(const TraceLine& line) {
        std::string text = "abandoned, " + std::string(engine::fault_text(line.fault)) + "; it stays ";
        text +=
            line.kind == TraceLine::Kind::text ? '"' + shortened(line.text) + '"' : number_of(line.number);
        const std::string unit = unit_of(line.unit);
        return unit.empty() ? text : text + ' ' + unit;
    }

    void write_formula(const TraceLine& line) {
        Row row{.step = line.step,
                .symbol = std::string(line.symbol),
                .formula = printed(line.formula, Style::symbols),
                .numbers = printed(line.formula, Style::numbers),
                .value = line.kind == TraceLine::Kind::text ? shortened(line.text) : number_of(line.number),
                .unit = unit_of(line.unit),
                .meaning = meaning_of(line)};
        if (line.kind == TraceLine::Kind::text && line.formula.kind != Spelling::Kind::words) {
            row.value = number_of(platform::read_number(line.text).number);
        }
        drop_repetition(row);
        if (!line.workings.empty() && line.formula.kind == Spelling::Kind::call) {
            row.numbers.clear();  // the lines below it have them
        }
        if (line.fault != Fault::none) {
            row.remark = abandoned(line);
        }
        cite(row, engine::source_of_step(sheet_, line.symbol, line.formula));
        if (only_stores(line)) {
            row.source = engine::own_rule;
        }
        add(std::move(row));
    }

    [[nodiscard]] std::string meaning_of(const TraceLine& line) const {
        const auto column =
            line.kind == TraceLine::Kind::text ? engine::column_named(line.symbol) : std::nullopt;
        return column ? caption_of(*column, caption_) : std::string(line.meaning);
    }

    /// Numbers that say no more than the formula or the value are left out.
    static void drop_repetition(Row& row) {
        if (row.numbers == row.formula || row.numbers == row.value) {
            row.numbers.clear();
        }
        if (row.formula == row.value || row.formula == '"' + row.value + '"') {
            row.formula.clear();
        }
    }

    void write_condition(const TraceLine& line) {
        Row row{.kind = Row::Kind::condition,
                .step = line.step,
                .formula = printed(line.formula, Style::symbols),
                .numbers = printed(line.formula, Style::numbers),
                .value = line.number != 0.0 ? "yes" : "no"};
        if (line.fault != Fault::none) {
            row.remark = std::string(engine::fault_text(line.fault)) + ": the branch is entered";
        }
        drop_repetition(row);
        add(std::move(row));
    }

    void write_workings(const TraceLine& line) {
        for (const auto& working : line.workings) {
            write_constants(working.formula);
            write_readings(working.formula);
            write_working(line, working);
        }
    }

    void write_working(const TraceLine& line, const Working& working) {
        Row row{.kind = Row::Kind::detail,
                .symbol = std::string(working.symbol),
                .formula = printed(working.formula, Style::symbols),
                .numbers = printed(working.formula, Style::numbers),
                .value = number_of(working.number),
                .unit = unit_of(working.unit),
                .meaning = std::string(working.meaning)};
        drop_repetition(row);
        switch (working.kind) {
            case Working::Kind::value:
                row.remark = working.fault == Fault::none ? "" : "has no value";
                cite(row, engine::source_of_working(sheet_, line.formula, working.symbol, working.formula));
                break;
            case Working::Kind::condition:
                row.kind = Row::Kind::condition;
                row.value = working.number != 0.0 ? "yes" : "no";
                break;
            case Working::Kind::search:
                row.kind = Row::Kind::search;
                row.meaning = "found by a search; put back below";
                row.remark = "searched from " + number_of(working.low) + " to " + number_of(working.high) +
                             " so that the residual vanishes: " + std::to_string(working.passes) +
                             (working.passes == 1 ? " pass, " : " passes, ") + std::string(working.meaning);
                break;
            case Working::Kind::note:
                if (is_shown_as_box(working.text)) {
                    return;  // it stands there as a message
                }
                row = {.kind = Row::Kind::note, .remark = typeset(working.text)};
                break;
        }
        add(std::move(row));
    }

    const SolvedCopy& solved_;
    const std::string& sheet_;
    const Caption& caption_;
    WrittenSteps written_;
    std::size_t boxes_ = 0;
    std::set<Column> read_by_a_step_;
    std::set<Column> told_;
    std::set<std::string> targets_;
    std::set<std::string> constants_;
};

const TraceLine* rounding_of(const SolvedCopy& solved, std::string_view column) {
    const auto found = std::find_if(solved.roundings.begin(), solved.roundings.end(),
                                    [&](const TraceLine& line) { return line.symbol == column; });
    return found == solved.roundings.end() ? nullptr : &*found;
}

}  // namespace

WrittenSteps write_steps(const SolvedCopy& solved, const std::string& sheet, const Caption& caption) {
    return Writer(solved, sheet, caption).write();
}

std::vector<Row> write_results(const SolvedCopy& solved, const Caption& caption) {
    std::vector<Row> rows;
    for (const Column column : engine::all_result_columns()) {
        const auto& text = solved.inlet.text(column);
        if (!solved.solved || text.empty()) {
            continue;
        }
        Row row{.kind = Row::Kind::result,
                .symbol = std::string(engine::column_name(column)),
                .value = text,
                .unit = unit_of(engine::column_unit(column)),
                .meaning = caption_of(column, caption)};
        const TraceLine* const step = last_step_of(solved, row.symbol);
        row.step = step != nullptr ? step->step : 0;
        if (const TraceLine* const rounding = rounding_of(solved, row.symbol)) {
            row.formula = printed(rounding->formula, Style::symbols);
            row.numbers = printed(rounding->formula, Style::numbers);
            if (step != nullptr && only_stores(*step)) {
                row.formula.replace(row.formula.find(row.symbol), row.symbol.size(), step->formula.symbol);
            }
        } else if (step != nullptr && only_stores(*step)) {
            row.formula = step->formula.symbol;
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace gullymark::calculation
