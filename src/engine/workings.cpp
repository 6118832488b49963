#include "engine/workings.h"

namespace gullymark::engine::formula {

std::vector<Working>* workings = nullptr;

void note_value(const Quantity& target, const Outcome& outcome, Spelling spelling) {
    workings->push_back({.kind = Working::Kind::value,
                         .symbol = target.symbol,
                         .unit = target.unit,
                         .meaning = target.meaning,
                         .number = outcome.value.number(),
                         .fault = outcome.fault,
                         .formula = std::move(spelling)});
}

void note_condition(bool holds, Spelling spelling) {
    workings->push_back(
        {.kind = Working::Kind::condition, .number = holds ? 1.0 : 0.0, .formula = std::move(spelling)});
}

void note_text(std::string_view text) {
    if (workings != nullptr) {
        workings->push_back({.kind = Working::Kind::note, .text = std::string(text)});
    }
}

void note_search(const Search& search) {
    if (workings != nullptr) {
        workings->push_back({.kind = Working::Kind::search,
                             .symbol = search.target.symbol,
                             .unit = search.target.unit,
                             .meaning = search.ending,
                             .number = search.answer.value.number(),
                             .fault = search.answer.fault,
                             .low = search.low.number(),
                             .high = search.high.number(),
                             .tolerance = search.tolerance,
                             .passes = search.passes});
    }
}

Real Taken::value() const {
    return Named("", number).value();
}

}  // namespace gullymark::engine::formula
