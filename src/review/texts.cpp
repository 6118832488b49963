#include "review/texts.h"

#include <algorithm>
#include <cmath>

#include "calculation/typeset.h"
#include "engine/unit_constants.h"
#include "engine/units.h"
#include "platform/number_text.h"

namespace gullymark::review {

using engine::Column;

namespace {

std::string with_unit(const std::string& text, engine::Unit unit) {
    const auto name = engine::unit_text(unit);
    return name.empty() ? text : text + ' ' + std::string(name);
}

}  // namespace

std::optional<double> number_of(std::string_view text) {
    const auto read = platform::read_number(text);
    return read.fault == platform::NumberFault::none ? std::optional(read.number) : std::nullopt;
}

double number_or_zero(const engine::InletRecord& record, Column column) {
    return number_of(record.text(column)).value_or(0.0);
}

bool is_same_number(std::string_view one, std::string_view other) {
    return one == other || (number_of(one) && number_of(one) == number_of(other));
}

std::string name_of(Column column) {
    const auto meaning = engine::column_meaning(column);
    return std::string(meaning.substr(0, meaning.find_first_of(":;")));
}

std::string told(const engine::InletRecord& record, Column column) {
    const auto& text = record.text(column);
    return text.empty() ? "blank" : with_unit(calculation::shortened(text), engine::column_unit(column));
}

std::string listed(const Project& project, const std::vector<std::size_t>& indices, std::size_t most) {
    std::string list;
    for (std::size_t i = 0; i < std::min(indices.size(), most); ++i) {
        list += (i == 0 ? "" : ", ") + told(project.inlets[indices[i]], Column::INLET_NUMBER);
    }
    return indices.size() > most ? list + " and " + std::to_string(indices.size() - most) + " more" : list;
}

std::string told_flow(double flow) {
    if (!std::isfinite(flow)) {
        return "more than can be told";
    }
    return with_unit(platform::format_number(flow, engine::by_units("0.000", "0.0000")),
                     engine::Unit::discharge);
}

std::vector<std::string> stored_formats() {
    return engine::is_english() ? std::vector<std::string>{"0.000"}
                                : std::vector<std::string>{"0.0000", "0.000"};
}

bool is_stored_as(std::string_view text, double number, const std::vector<std::string>& formats) {
    const auto stored = number_of(text);
    return stored && std::isfinite(number) &&
           std::any_of(formats.begin(), formats.end(), [&](const std::string& format) {
               return number_of(platform::format_number(number, format)) == stored;
           });
}

}  // namespace gullymark::review
