#include "engine/results.h"

#include <array>
#include <string>
#include <string_view>

#include "engine/inlet_record.h"
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

}  // namespace

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
        open_inlet.set(column, platform::format_text(text, decimals));
    }
}

}  // namespace gullymark::engine
