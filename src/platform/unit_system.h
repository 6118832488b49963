#pragma once

#include <string_view>

/// The word for the units of a project that the project's file, its form and the hydraulics compare with, case counting.
/// Any other text is metric.
namespace gullymark::platform {

inline constexpr std::string_view english_units = "ENGLISH";

}  // namespace gullymark::platform
