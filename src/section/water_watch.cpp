#include "section/water_watch.h"

#include <algorithm>

#include "platform/number_text.h"
#include "section/inputs.h"

namespace gullymark::section {
namespace {

using engine::Column;

/// The same text, or the same number in other letters.
bool same_value(const std::string& one, const std::string& other) {
    if (one == other) {
        return true;
    }
    const auto number = platform::read_number(one);
    const auto other_number = platform::read_number(other);
    return number.fault == platform::NumberFault::none && other_number.fault == platform::NumberFault::none &&
           number.number == other_number.number;
}

}  // namespace

bool WaterWatch::same_inputs(const engine::InletRecord& record) const {
    return unchanged_ && std::ranges::all_of(engine::all_columns, [&](Column column) {
               const auto& before = unchanged_->at(static_cast<std::size_t>(column));
               return !is_input(column, record) ||
                      same_value(before.value_or(std::string()), record.text(column));
           });
}

Water WaterWatch::look(const engine::InletRecord& record) {
    if (!record.changed()) {
        unchanged_.emplace();
        for (const Column column : engine::all_columns) {
            unchanged_->at(static_cast<std::size_t>(column)) = record.value(column);
        }
    }
    const Water water = water_of(record);
    return water == Water::unsolved && same_inputs(record) ? Water::solved : water;
}

}  // namespace gullymark::section
