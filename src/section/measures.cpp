#include "section/measures.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engine/unit_constants.h"
#include "engine/words.h"
#include "platform/number_text.h"

namespace gullymark::section {
namespace {

using engine::Column;
using engine::Unit;

constexpr double longest = 1000;
constexpr double steepest = 4;
constexpr std::size_t longest_text = 12;
constexpr double meters_in_a_foot = 0.3048;

double most_of(Unit unit) {
    return unit == Unit::slope ? steepest : longest;
}

}  // namespace

std::optional<Measure> measure_in(const engine::InletRecord& record, Column column) {
    const std::string& text = record.text(column);
    const auto read = platform::read_number(text);
    const Unit unit = engine::column_unit(column);
    double size = read.number;
    if (unit == Unit::depth) {
        engine::set_depthFactor();
        size /= static_cast<double>(engine::unit_constants.depthFactor);
    }
    if (read.fault != platform::NumberFault::none || size < 0 || size > most_of(unit)) {
        return std::nullopt;
    }
    return Measure{.size = size, .text = shown_number(text, unit)};
}

double size_in(const engine::InletRecord& record, Column column) {
    const auto measure = measure_in(record, column);
    return measure ? measure->size : 0;
}

std::string shown_number(std::string_view text, Unit unit) {
    std::string shown(platform::trim_blanks(text));
    if (shown.size() > longest_text) {
        shown = platform::number_text(platform::read_number(text).number);
    }
    if (const auto name = engine::unit_text(unit); !name.empty()) {
        shown += ' ' + std::string(name);
    }
    return shown;
}

std::string shown_result(double number, Unit unit) {
    return shown_number(platform::format_number(number, engine::by_units("#0.000", "#0.0000")), unit);
}

double Gutter::height(double x) const {
    return x <= W ? x * Sw : W * Sw + (x - W) * Sx;
}

Gutter gutter_in(const engine::InletRecord& record) {
    return {.W = size_in(record, Column::GUTWIDTH),
            .Sx = size_in(record, Column::PAVXSLOPE),
            .Sw = size_in(record, Column::GUTXSLOPE)};
}

Inlet inlet_of(const engine::InletRecord& record) {
    namespace words = engine::words;
    constexpr std::array<std::pair<std::string_view, Inlet>, 5> kinds{{
        {words::curb_inlet, Inlet::curb},
        {words::grate_inlet, Inlet::grate},
        {words::combination_inlet, Inlet::combination},
        {words::slotted_inlet, Inlet::slotted},
        {words::ditch_inlet, Inlet::ditch},
    }};
    const auto* const kind = std::ranges::find(kinds, std::string_view(record.text(Column::INLET_TYPE)),
                                               &std::pair<std::string_view, Inlet>::first);
    return kind == kinds.end() ? Inlet::unknown : kind->second;
}

bool in_sump(const engine::InletRecord& record) {
    return record.text(Column::INLET_LOCATION) == engine::words::sump;
}

double usual(double feet) {
    return engine::is_english() ? feet : feet * meters_in_a_foot;
}

}  // namespace gullymark::section
