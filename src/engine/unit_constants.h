#pragma once

#include <string>
#include <string_view>

namespace gullymark::engine {

/// The module-wide values that follow the unit system. The float ones are 32-bit by nature: 0.56 stands for
/// 0.5600000023841858, and results depend on it. ENGLISH and metric values stand side by side in unit_constants.cpp.
struct UnitConstants {
    float gutterFlowConstant = 0.0F;     // Manning's equation for gutter flow
    float sideFlowConstant = 0.0F;       // side flow interception of a grate
    float curbLengthConstant = 0.0F;     // length for total interception
    float manningConstant = 0.0F;        // Manning's equation of a ditch section
    float depthFactor = 0.0F;            // ft to in, m to mm
    float gravity = 0.0F;                // ft/s2, m/s2; set by the solvers of sumps alone
    int curbLengthLimit = 0;             // ft, m: longest opening that counts as a depressed weir
    double weirCoefficient = 0.0;        // the solvers of sumps and ditches set their own
    std::string numberFormat = "0.000";  // of most numbers; the lists and the record view change it too
};

extern UnitConstants unit_constants;

/// The text of the project's units. platform::english_units is the one name; any other text is metric.
extern std::string UnitSystem;

/// True when the project's units are ENGLISH: feet, inches and cubic feet per second.
[[nodiscard]] bool is_english();

/// Of two values that of the unit system in force.
template <typename Value>
[[nodiscard]] Value by_units(Value english, Value metric) {
    return is_english() ? english : metric;
}

// One procedure for each value, since every solver sets those that it uses and no others. Each takes the value of the
// unit system in force.
void set_gutterFlowConstant();  // 0.56, 0.376
void set_sideFlowConstant();    // 0.15, 0.0828
void set_curbLengthConstant();  // 0.6, 0.817
void set_manningConstant();     // 1.486, 1.0
void set_depthFactor();         // 12 in/ft, 1000 mm/m
void set_gravity();             // 32.174 ft/s2, 9.81 m/s2
void set_curbLengthLimit();     // 12 ft, 4 m

/// All of the above but `gravity`, with `numberFormat` and the default weir coefficient: for a form that is prepared.
void set_unit_defaults();

}  // namespace gullymark::engine
