#include "engine/hydraulics/inlet_repairs.h"

#include "platform/number_text.h"

namespace gullymark::engine {

void fill_blank(int first, Column column, std::string_view text) {
    if (holds(first, [&] { return open_inlet.text(column).empty(); })) {
        step(first + 1, column, [&] { return text; });
    }
}

Real rounded(Real number, std::string_view format) {
    return {platform::read_number(platform::format_number(number.number(), format)).number};
}

}  // namespace gullymark::engine
