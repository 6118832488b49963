#pragma once

#include <string_view>

#include "engine/step.h"

/// The headings of the design, under which the steps of a calculation sheet stand.
namespace gullymark::engine::heading {

inline constexpr std::string_view flow = "Flow";
inline constexpr std::string_view inputs = "Inlet and section";
inline constexpr std::string_view check = "Check of the inputs";
inline constexpr std::string_view spread = "Spread of the approaching flow";
inline constexpr std::string_view flow_ratio = "Flow ratio";
inline constexpr std::string_view cross_slope = "Depressed section";
inline constexpr std::string_view total_interception = "Length for total interception";
inline constexpr std::string_view depth_and_velocity = "Depth and velocity";
inline constexpr std::string_view ditch_flow = "Depth in the ditch";
inline constexpr std::string_view curb_interception = "Interception by the curb opening";
inline constexpr std::string_view efficiency = "Efficiency";
inline constexpr std::string_view interception = "Interception";
inline constexpr std::string_view berm = "Downstream berm";
inline constexpr std::string_view weir = "Depth as a weir";
inline constexpr std::string_view orifice = "Depth as an orifice";
inline constexpr std::string_view depth = "Depth over the inlet";
inline constexpr std::string_view rating = "Rated depth";
inline constexpr std::string_view regime = "Flow regime";
inline constexpr std::string_view spread_and_depth = "Spread and depth at the inlet";
inline constexpr std::string_view interception_in_sump = "Depths and interception";

}  // namespace gullymark::engine::heading

namespace gullymark::engine {

/// The steps that follow stand under that heading.
inline void under(std::string_view heading) {
    onlooker.heading = heading;
}

}  // namespace gullymark::engine
