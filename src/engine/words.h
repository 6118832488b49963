#pragma once

#include <string_view>

/// The words that columns hold and lists offer: the kinds of inlets, where they stand, their throats and curbs, and the
/// regimes of flow. They are compared whole, case counting; a text that is none of them is left to who compares.
namespace gullymark::engine::words {

// INLET_TYPE
inline constexpr std::string_view curb_inlet = "Curb Inlet";
inline constexpr std::string_view grate_inlet = "Grate Inlet";
inline constexpr std::string_view combination_inlet = "Combination Curb and Grate Inlet";
inline constexpr std::string_view slotted_inlet = "Slotted Inlet";
inline constexpr std::string_view ditch_inlet = "Grate Inlet in a Ditch";

// INLET_LOCATION
inline constexpr std::string_view continuous_grade = "CONTINUOUS GRADE";
inline constexpr std::string_view sump = "SUMP";

// THROATYPE
inline constexpr std::string_view horizontal_throat = "Horizontal";
inline constexpr std::string_view inclined_throat = "Inclined";
inline constexpr std::string_view vertical_throat = "Vertical";

// CURBOPTION
inline constexpr std::string_view with_curb = "With Curb";
inline constexpr std::string_view without_curb = "Without Curb";

// INLETPERF
inline constexpr std::string_view weir_flow = "Weir Flow";
inline constexpr std::string_view orifice_flow = "Orifice Flow";
inline constexpr std::string_view transition_flow = "Transition Flow";
inline constexpr std::string_view slot_transition_flow = "Transition flow";  // with a small f, deliberately

}  // namespace gullymark::engine::words
