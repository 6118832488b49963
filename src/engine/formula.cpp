#include "engine/formula.h"

#include "platform/number_text.h"

namespace gullymark::engine::formula {

Spelling Named::spelled() const {
    return {.kind = Spelling::Kind::number,
            .symbol = column ? column_name(*column) : symbol,
            .number = number.value.number(),
            .is_single = is_single,
            .fault = number.fault,
            .text = column ? open_inlet.text(*column) : std::string(),
            .column = column};
}

Spelling Reading::spelled() const {
    return Named(*this).spelled();
}

Spelling Copied::spelled() const {
    return spell_words(column_name(column), text(), column);
}

Outcome read_number(std::string_view text) {
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

double decimals_of(std::string_view format) {
    const auto point = format.find('.');
    return point == std::string_view::npos ? 0.0 : static_cast<double>(format.size() - point - 1);
}

std::string text_in_format(Real number, std::string_view format) {
    return platform::format_number(number.number(), format);
}

Real number_in_format(Real number, std::string_view format) {
    return {platform::read_number(text_in_format(number, format)).number};
}

}  // namespace gullymark::engine::formula

namespace gullymark::engine {

Real number_in(std::string_view text) {
    return formula::Named({}, formula::read_number(text)).value();
}

}  // namespace gullymark::engine
