#include "engine/unit_constants.h"

#include "platform/unit_system.h"

namespace gullymark::engine {

UnitConstants unit_constants;
std::string UnitSystem;

bool is_english() {
    return UnitSystem == platform::english_units;
}

void set_gutterFlowConstant() {
    unit_constants.gutterFlowConstant = by_units(0.56F, 0.376F);
}

void set_sideFlowConstant() {
    unit_constants.sideFlowConstant = by_units(0.15F, 0.0828F);
}

void set_curbLengthConstant() {
    unit_constants.curbLengthConstant = by_units(0.6F, 0.817F);
}

void set_manningConstant() {
    unit_constants.manningConstant = by_units(1.486F, 1.0F);
}

void set_depthFactor() {
    unit_constants.depthFactor = by_units(12.0F, 1000.0F);
}

void set_gravity() {
    unit_constants.gravity = by_units(32.174F, 9.81F);
}

// The metric limit is 3.6 m held as a whole number, which makes it 4.
void set_curbLengthLimit() {
    unit_constants.curbLengthLimit = by_units(12, 4);
}

void set_unit_defaults() {
    set_gutterFlowConstant();
    set_sideFlowConstant();
    set_curbLengthConstant();
    set_manningConstant();
    set_depthFactor();
    set_curbLengthLimit();
    unit_constants.weirCoefficient = by_units(2.3, 1.66);
    unit_constants.numberFormat = by_units("#0.000", "#0.0000");
}

}  // namespace gullymark::engine
