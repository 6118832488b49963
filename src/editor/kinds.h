#pragma once

#include <string_view>

/// The texts of inlet types and locations, as columns and lists hold them.
namespace gullymark::editor {

inline constexpr std::string_view curb_inlet = "Curb Inlet";
inline constexpr std::string_view grate_inlet = "Grate Inlet";
inline constexpr std::string_view combination_inlet = "Combination Curb and Grate Inlet";
inline constexpr std::string_view slotted_inlet = "Slotted Inlet";
inline constexpr std::string_view ditch_inlet = "Grate Inlet in a Ditch";

inline constexpr std::string_view continuous_grade = "CONTINUOUS GRADE";
inline constexpr std::string_view sump = "SUMP";

}  // namespace gullymark::editor
