#include "calculation/typeset.h"

#include <algorithm>
#include <array>

#include "platform/characters.h"

namespace gullymark::calculation {
namespace {

struct Sign {
    std::string_view written;
    std::string_view printed;
};

// Longer ones first.
constexpr auto signs = std::to_array<Sign>({
    {" x ", " \u00D7 "},
    {" - ", " \u2212 "},
    {" <= ", " \u2264 "},
    {" >= ", " \u2265 "},
    {" <> ", " \u2260 "},
    {"(-", "(\u2212"},
    {"sqrt(", "\u221A("},
});

}  // namespace

std::string shortened(std::string_view text) {
    constexpr std::size_t longest = 60;
    std::string line = platform::on_one_line(text);
    if (std::string head = platform::first_characters(line, longest); head != line) {
        return head + "...";
    }
    return line;
}

std::string typeset(std::string_view formula) {
    std::string printed;
    while (!formula.empty()) {
        if (formula.front() == '"') {
            const auto end = std::min(formula.find('"', 1), formula.size());
            printed += '"' + shortened(formula.substr(1, end - 1)) + '"';
            formula.remove_prefix(std::min(end + 1, formula.size()));
            continue;
        }
        const auto* const sign = std::find_if(
            signs.begin(), signs.end(), [&](const Sign& each) { return formula.starts_with(each.written); });
        if (sign == signs.end()) {
            printed += formula.front();
            formula.remove_prefix(1);
        } else {
            // A blank that a sign ends in may begin the next one.
            const bool shares = sign->written.back() == ' ';
            printed += sign->printed.substr(0, sign->printed.size() - (shares ? 1U : 0U));
            formula.remove_prefix(sign->written.size() - (shares ? 1U : 0U));
        }
    }
    return printed.starts_with('-') ? "\u2212" + printed.substr(1) : printed;
}

}  // namespace gullymark::calculation
