#include "engine/results.h"

#include <array>
#include <string>
#include <string_view>

#include "engine/inlet_record.h"
#include "engine/step.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"

namespace gullymark::engine {
namespace {

enum class ResultFormat : unsigned char { follows_units, four_decimals, stays_as_written };

struct ResultColumn {
    Column column;
    ResultFormat format;
};

constexpr auto result_columns = std::to_array<ResultColumn>({
#define RESULT_COLUMN(name, format, unit, meaning) {Column::name, ResultFormat::format},
#include "engine/inlet_columns.def"
});

/// What the rounding of a column does, for the trace that somebody takes.
void note_rounding(Column column, std::string_view decimals) {
    const std::string& text = open_inlet.text(column);
    const formula::Named unrounded(column_name(column), formula::read_number(text));
    onlooker.roundings->push_back({.kind = TraceLine::Kind::text,
                                   .unit = column_unit(column),
                                   .symbol = column_name(column),
                                   .meaning = column_meaning(column),
                                   .text = platform::format_text(text, decimals),
                                   .formula = rounded(unrounded, decimals).spelled()});
}

}  // namespace

std::vector<Column> all_result_columns() {
    std::vector<Column> columns;
    for (const auto& result : result_columns) {
        columns.push_back(result.column);
    }
    return columns;
}

void clear_results() {
    for (const auto& result : result_columns) {
        open_inlet.set(result.column, "");
    }
}

void format_results() {
    for (const auto& [column, format] : result_columns) {
        const std::string& text = open_inlet.text(column);
        if (format == ResultFormat::stays_as_written || text.empty()) {
            continue;
        }
        const std::string_view decimals =
            format == ResultFormat::four_decimals ? "0.0000" : std::string_view(unit_constants.numberFormat);
        if (onlooker.roundings != nullptr) {
            note_rounding(column, decimals);
        }
        open_inlet.set(column, platform::format_text(text, decimals));
    }
}

}  // namespace gullymark::engine
