#include "review/finding_lines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace gullymark::review {
namespace {

using Texts = std::array<std::pair<const char*, std::string_view>, 5>;

Texts texts_of(const Finding& finding) {
    return {{{"severity", severity_word(finding.severity)},
             {"rule", finding.rule},
             {"inlet", finding.inlet},
             {"text", finding.text},
             {"advice", finding.advice}}};
}

bool is_control(char letter) {
    constexpr char delete_character = 0x7f;
    return (letter >= 0 && letter < ' ') || letter == delete_character;
}

std::string without_controls(std::string_view text) {
    std::string clean(text);
    std::ranges::replace_if(clean, is_control, ' ');
    return clean;
}

/// How many bytes the character of UTF-8 has that `text` begins with; 0 where it begins with none: a byte that goes on
/// nothing, a character cut off, one longer than it must be, half of a pair, one beyond the last.
std::size_t character_length(std::string_view text) {
    const auto byte = [&](std::size_t at) -> unsigned {
        return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
    };
    const auto goes_on = [&](std::size_t at, unsigned low = 0x80, unsigned high = 0xbf) {
        return byte(at) >= low && byte(at) <= high;
    };
    const unsigned first = byte(0);
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xc2 && first <= 0xdf) {
        return goes_on(1) ? 2 : 0;
    }
    if (first >= 0xe0 && first <= 0xef) {
        return goes_on(1, first == 0xe0 ? 0xa0 : 0x80, first == 0xed ? 0x9f : 0xbf) && goes_on(2) ? 3 : 0;
    }
    if (first >= 0xf0 && first <= 0xf4) {
        const bool is_whole =
            goes_on(1, first == 0xf0 ? 0x90 : 0x80, first == 0xf4 ? 0x8f : 0xbf) && goes_on(2) && goes_on(3);
        return is_whole ? 4 : 0;
    }
    return 0;
}

std::string escaped_control(char letter) {
    constexpr std::string_view digits = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(letter);
    return std::string("\\u00") + digits[code / 16U] + digits[code % 16U];
}

std::string quoted_json(std::string_view text) {
    std::string quoted = "\"";
    while (!text.empty()) {
        const std::size_t length = character_length(text);
        const char letter = text.front();
        if (length == 0) {
            quoted += "\\ufffd";
        } else if (is_control(letter)) {
            quoted += escaped_control(letter);
        } else {
            quoted += letter == '"' || letter == '\\' ? "\\" : "";
            quoted += text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return quoted + '"';
}

std::string counted(std::ptrdiff_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace

std::string_view severity_word(Severity severity) {
    switch (severity) {
        case Severity::wrong:
            return "wrong";
        case Severity::beyond:
            return "beyond";
        default:
            return "doubtful";
    }
}

std::string finding_lines(const std::vector<Finding>& findings) {
    std::string lines;
    for (const auto& finding : findings) {
        const char* separator = "";
        for (const auto& [name, text] : texts_of(finding)) {
            lines += std::exchange(separator, "\t") + without_controls(text);
        }
        lines += '\n';
    }
    return lines;
}

std::string finding_json(const std::vector<Finding>& findings) {
    std::string json = "[";
    const char* before_finding = "\n";
    for (const auto& finding : findings) {
        json += std::exchange(before_finding, ",\n");
        const char* before_text = "{";
        for (const auto& [name, text] : texts_of(finding)) {
            json += std::exchange(before_text, ", ") + quoted_json(name) + ": " + quoted_json(text);
        }
        json += "}";
    }
    return json + (findings.empty() ? "]\n" : "\n]\n");
}

std::string finding_counts(const std::vector<Finding>& findings, std::size_t inlets) {
    const auto count = [&](Severity severity) {
        const auto found = std::ranges::count(findings, severity, &Finding::severity);
        return std::to_string(found) + " " + std::string(severity_word(severity));
    };
    return counted(static_cast<std::ptrdiff_t>(findings.size()), "finding", "findings") + " on " +
           counted(static_cast<std::ptrdiff_t>(inlets), "inlet", "inlets") + ": " + count(Severity::wrong) +
           ", " + count(Severity::beyond) + ", " + count(Severity::doubtful);
}

}  // namespace gullymark::review
