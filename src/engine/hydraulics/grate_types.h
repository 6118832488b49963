#pragma once

#include <string_view>
#include <vector>

#include "engine/step.h"

/// The grates that the system knows, and how much of the flow that meets a grate from the front it takes.
namespace gullymark::engine {

/// One kind of grate: above the velocity Vo water begins to splash over. Vo is fitted as a line for the
/// longer grates and as a parabola for the shorter ones, of the length in feet:
///
///   Vo = b1 Lf + b0,  Vo = c2 Lf^2 + c1 Lf + c0
///
/// Source: fits of the curves of FHWA, HEC-22, third edition, chart 5B: doc/sources.md#frontal
struct GrateType {
    std::string_view name;
    std::string_view other_name;  // empty when there is none
    double Vmax = 0.0;            // a longer grate takes nothing at this velocity or above
    double b1 = 0.0;
    double b0 = 0.0;
    double c2 = 0.0;
    double c1 = 0.0;
    double c0 = 0.0;
};

/// The grate of that text in GRATETYPE, compared whole and exactly; null for a text that names none.
const GrateType* grate_type(std::string_view text);

/// The names of all types in the order of a list to pick from; those of the unit system in force.
std::vector<std::string_view> grate_names();

/// The length, in ft or m, between those of the short grates and those of the long ones: a grate of exactly this length
/// follows neither fit and takes no frontal flow.
double short_grate_length();

/// The part of a sheet that finds the frontal efficiency Rf.
struct FrontalFlow {
    Reading length;  // INLETLENGTH
    Quantity Lf{"Lf", Unit::other, "length of the grate in ft"};
    Quantity Vo{"Vo", Unit::other, "velocity of splash-over"};
    Quantity Rf{"Rf", Unit::ratio, "efficiency for frontal flow"};
};

/// Reads INLETLENGTH; converts a metric one into Lf, which is one step. An ENGLISH length is already in feet.
void read_grate_length(int number, FrontalFlow& frontal);

/// The length of the grate in feet: in ENGLISH units the number in INLETLENGTH, so that a text that is none
/// faults wherever the length is used; else Lf, which such a text has left at 0.
formula::Named grate_length_in_feet(const FrontalFlow& frontal);

/// The efficiency Rf for frontal flow of the grate in GRATETYPE at a velocity:
///
///   Rf = 1 for Lf >= 10, 0 for 4.5 < Lf < 10 and V >= Vmax, else 1 - 0.09 (V - Vo), held within 0 and 1
///
/// An unknown grate, a length of 0 or below and one of exactly 4.5 ft give 0. A metric velocity goes in as it
/// is: the fits stand for both unit systems. The hole at 4.5 and the unconverted velocity are deliberate. Thirteen steps
/// from `first` on.
void find_frontal_efficiency(int first, FrontalFlow& frontal, const formula::Named& V);

}  // namespace gullymark::engine
