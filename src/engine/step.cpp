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
    if (line.fault != Fault::none) {
        text += " abandoned: " + std::string(fault_text(line.fault));
    } else if (line.kind == TraceLine::Kind::text) {
        text += " = \"" + line.text + '"';
    } else {
        text += " = " + platform::number_text(line.number);
    }
    if (const auto unit = unit_text(line.unit); !unit.empty() && line.fault == Fault::none) {
        text += ' ';
        text += unit;
    }
    text += "  ";
    text += line.meaning;
    return text;
}

namespace {

Outcome read(std::string_view text) {
    const auto read = platform::read_number(text);
    switch (read.fault) {
        case platform::NumberFault::unreadable:
            return Fault::unreadable_number;
        case platform::NumberFault::overflow:
            return Fault::overflow;
        case platform::NumberFault::none:
            break;
    }
    return Real(read.number);
}

}  // namespace

Real number_in(std::string_view text) {
    const Outcome outcome = read(text);
    if (outcome.fault != Fault::none) {
        throw outcome.fault;
    }
    return outcome.value;
}

Reading::Reading(Column column) : outcome_(read(open_inlet.text(column))) {}

Real number_in(Column column) {
    return number_in(open_inlet.text(column));
}

namespace detail {

void note(int number, const Quantity& target, Fault fault) {
    onlooker.trace->push_back({.step = number,
                               .kind = TraceLine::Kind::number,
                               .fault = fault,
                               .unit = target.unit,
                               .symbol = target.symbol,
                               .meaning = target.meaning,
                               .number = target.value.number()});
}

void note(int number, Column target, Fault fault) {
    onlooker.trace->push_back({.step = number,
                               .kind = TraceLine::Kind::text,
                               .fault = fault,
                               .unit = column_unit(target),
                               .symbol = column_name(target),
                               .meaning = column_meaning(target),
                               .text = open_inlet.text(target)});
}

void note(int number, bool entered, Fault fault) {
    onlooker.trace->push_back(
        {.step = number, .kind = TraceLine::Kind::condition, .fault = fault, .number = entered ? 1.0 : 0.0});
}

void write(Column target, Real number) {
    open_inlet.set(target, platform::number_letters(number.number()));
}

void write(Column target, std::string_view text) {
    open_inlet.set(target, text);
}

}  // namespace detail

}  // namespace gullymark::engine
