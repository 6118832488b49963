#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "roads/road_text.h"

/// How a line of a road is understood: by patterns of words.
namespace gullymark::roads {

using Texts = std::vector<std::string>;

/// The words that stand for the blanks of a pattern such as "type $ into $" or "choose ...": $ is one word, ... the
/// rest, each word for itself. Nothing when the words do not fit.
std::optional<Texts> fit(std::string_view pattern, const std::vector<Word>& words);

std::string join(const Texts& texts, std::string_view between, std::size_t from = 0);

/// The pages of the form, as roads call them.
inline constexpr std::array<std::string_view, 4> page_names{"details", "flow data", "inlet data", "results"};

/// A page by its name; throws std::runtime_error for any other word.
int page_named(const std::string& name);

}  // namespace gullymark::roads
