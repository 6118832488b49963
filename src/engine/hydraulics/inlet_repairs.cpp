#include "engine/hydraulics/inlet_repairs.h"

#include "platform/number_text.h"

namespace gullymark::engine {

Real rounded(Real number, std::string_view format) {
    return {platform::read_number(platform::format_number(number.number(), format)).number};
}

}  // namespace gullymark::engine
