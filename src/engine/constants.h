#pragma once

#include "engine/formula.h"
#include "engine/unit_constants.h"

/// The constants of the unit system in force as the formulas name them. Their values are 32-bit numbers, and are computed
/// with as such; a reader sees the digits that they are known by: 0.6.
namespace gullymark::engine::constants {

inline formula::Named K() {
    return {"K", unit_constants.gutterFlowConstant};
}
inline formula::Named K_s() {
    return {"K_s", unit_constants.sideFlowConstant};
}
inline formula::Named K_L() {
    return {"K_L", unit_constants.curbLengthConstant};
}
inline formula::Named M() {
    return {"M", unit_constants.manningConstant};
}
inline formula::Named g() {
    return {"g", unit_constants.gravity};
}
inline formula::Named depthFactor() {
    return {"depthFactor", unit_constants.depthFactor};
}
inline formula::Named curbLengthLimit() {
    return {"curbLengthLimit", static_cast<double>(unit_constants.curbLengthLimit)};
}
inline formula::Named Cw() {
    return {"Cw", unit_constants.weirCoefficient};
}

}  // namespace gullymark::engine::constants
