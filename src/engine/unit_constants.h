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

/// The text of the project's units. "ENGLISH" is the one name; any other text is metric.
extern std::string UnitSystem;

[[nodiscard]] bool is_english();

/// The value for the unit system in force.
template <typename Value>
[[nodiscard]] Value by_units(Value english, Value metric) {
    return is_english() ? english : metric;
}

// One procedure for each value, since every solver sets those that it uses and no others.
void set_gutterFlowConstant();
void set_sideFlowConstant();
void set_curbLengthConstant();
void set_manningConstant();
void set_depthFactor();
void set_gravity();
void set_curbLengthLimit();

/// All of the above but `gravity`, with `numberFormat` and the default weir coefficient: for a form that is prepared.
void set_unit_defaults();

}  // namespace gullymark::engine
