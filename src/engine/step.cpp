#include "engine/step.h"

#include "platform/number_text.h"

namespace gullymark::engine {

Onlooker onlooker;

std::string_view fault_text(Fault fault) {
    switch (fault) {
        case Fault::none:
            break;
        case Fault::division_by_zero:
            return "division by zero";
        case Fault::overflow:
            return "overflow";
        case Fault::no_real_power:
            return "no real power";
        case Fault::unreadable_number:
            return "unreadable number";
        case Fault::endless_search:
            return "endless search";
        case Fault::tripped:
            return "tripped";
    }
    return "";
}

std::string describe(const TraceLine& line) {
    std::string text = std::to_string(line.step) + "  ";
    if (line.kind == TraceLine::Kind::condition) {
        text += line.number != 0.0 ? "branch entered" : "branch passed by";
        return line.fault == Fault::none ? text : text + ": " + std::string(fault_text(line.fault));
    }
    text += line.symbol;
    text += line.fault == Fault::none ? " = "
                                      : " abandoned: " + std::string(fault_text(line.fault)) + "; it stays ";
    text += line.kind == TraceLine::Kind::text ? '"' + line.text + '"' : platform::number_text(line.number);
    if (const auto unit = unit_text(line.unit); !unit.empty()) {
        text += ' ';
        text += unit;
    }
    text += "  ";
    text += line.meaning;
    return text;
}

std::vector<std::string> describe_formula(const TraceLine& line, formula::Style numbers) {
    return formula::lines_of(line.formula, line.workings,
                             line.kind == TraceLine::Kind::condition ? "if " : "= ", numbers);
}

namespace detail {
namespace {

void keep(TraceLine line) {
    line.heading = onlooker.heading;
    onlooker.trace->push_back(std::move(line));
}

}  // namespace

void note(TraceLine line, const Quantity& target) {
    line.kind = TraceLine::Kind::number;
    line.unit = target.unit;
    line.symbol = target.symbol;
    line.meaning = target.meaning;
    line.number = target.value.number();
    keep(std::move(line));
}

void note(TraceLine line, Column target) {
    line.kind = TraceLine::Kind::text;
    line.unit = column_unit(target);
    line.symbol = column_name(target);
    line.meaning = column_meaning(target);
    line.text = open_inlet.text(target);
    keep(std::move(line));
}

void note(TraceLine line, bool entered) {
    line.kind = TraceLine::Kind::condition;
    line.number = entered ? 1.0 : 0.0;
    keep(std::move(line));
}

void write(Column target, Real number) {
    open_inlet.set(target, platform::number_letters(number.number()));
}

void write(Column target, std::string_view text) {
    open_inlet.set(target, text);
}

}  // namespace detail

}  // namespace gullymark::engine
