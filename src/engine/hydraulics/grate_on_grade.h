#pragma once

#include "engine/hydraulics/grate_types.h"
#include "engine/step.h"

/// What a grate and a combination of curb opening and grate on a continuous grade work out alike. Each procedure takes
/// the number that its first step has in the sheet. The formulas stand in GI_CG_RESULTS.h.
namespace gullymark::engine {

struct GrateOnGrade {
    Quantity Q{"Q", Unit::discharge, "flow that the inlet must take"};
    Quantity S{"S", Unit::slope, "longitudinal slope"};
    Quantity n{"n", Unit::ratio, "Manning's roughness"};
    Quantity W{"W", Unit::length, "gutter width"};
    Quantity Sx{"Sx", Unit::slope, "pavement cross slope"};
    Quantity Sw{"Sw", Unit::slope, "gutter cross slope"};
    Quantity Wa{"Wa", Unit::length, "width of the local depression"};
    Quantity C{"C", Unit::percent, "clogged share of the grate"};
    Quantity Wg{"Wg", Unit::length, "width of the grate"};
    Quantity Weff{"Weff", Unit::length, "width of the grate that clogging leaves"};
    Quantity SdashW{"S'w", Unit::slope, "inlet cross slope"};
    Quantity a{"a", Unit::length, "depression at the curb"};
    Quantity limit{"limit", Unit::length, "allowable spread"};
    Quantity T{"T", Unit::length, "spread of the gutter flow"};
    Quantity B{"B", Unit::ratio, "share of the flow outside the gutter width"};
    Quantity Eo{"Eo", Unit::ratio, "share of the flow within the gutter width"};
    Quantity Spw{"Spw", Unit::slope, "slope of the depressed section"};
    Quantity Se{"Se", Unit::slope, "composite cross slope"};
    Quantity LT{"LT", Unit::length, "length for total interception"};
    Quantity d{"d", Unit::length, "drop of the gutter below the pavement slope"};
    Quantity y{"y", Unit::depth, "depth at the curb"};
    Quantity A{"A", Unit::area, "area of the gutter flow"};
    Quantity V{"V", Unit::velocity, "velocity of the gutter flow"};
    FrontalFlow frontal;
    Quantity Rs{"Rs", Unit::ratio, "efficiency for side flow"};
    Quantity Eg{"Eg", Unit::ratio, "share of the flow over the clogged grate"};
    Quantity E{"E", Unit::ratio, "efficiency of the grate"};
};

/// Sets the constants of the unit system that both sheets use.
void set_constants_of_grate_on_grade();

/// Reads the columns into Q to limit; repairs GRATEPERCLOG and INLETXSLOPE. 19 steps.
void read_inputs(int first, GrateOnGrade& s);

/// The spread T, the flow ratio Eo, the slopes Spw and Se; writes OPENSPREAD, WT, FLOWRATIO and DEPXSLOPE. 20 steps.
void find_approach(int first, GrateOnGrade& s);

/// The length for total interception LT; writes COMPXSLOPE and INTLEN. 3 steps.
void find_interception_length(int first, GrateOnGrade& s);

/// The depth y at the curb, the area A and the velocity V of the gutter flow; writes CURBDEPTH and FLOWVEL. 9 steps.
void find_depth_and_velocity(int first, GrateOnGrade& s);

/// The grate's efficiency E at the velocity V (ft/s, m/s) over it; writes EFFICIENCY. 21 steps.
void find_grate_efficiency(int first, GrateOnGrade& s, const Quantity& V);

}  // namespace gullymark::engine
