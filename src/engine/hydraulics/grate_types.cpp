#include "engine/hydraulics/grate_types.h"

#include <algorithm>
#include <array>
#include <string>

#include "engine/unit_constants.h"

namespace gullymark::engine {
namespace {

using formula::Named;

constexpr double meters_per_foot = 0.3048;

// Share of the frontal flow that each ft/s above Vo splashes over; in metric units each m/s.
constexpr double splash_over = 0.09;

// Lengths in feet: a grate up to the one follows the parabola, from the other on it takes all of the frontal flow.
constexpr double short_grate = 4.5;
constexpr double longest_grate = 10.0;

// clang-format off
constexpr auto grate_types = std::to_array<GrateType>({
    // name               other name               Vmax   b1       b0      c2        c1     c0
    {"P-1-7/8",           "P-50",                  23.93, 1.2593,  13.315, -0.2667,  3.3,   2.56667},
    {"P-1-1/8",           "P-30",                  21.31, 1.20029, 5.2286, -0.13333, 2.3,   2.33333},
    {"Curved Vane",       "",                      21.31, 1.2214,  4.1476, -0.19167, 2.675, 1.366667},
    {"30\u00B0 Tilt Bar", "30\u00B0- 85 Tilt Bar", 20.08, 1.3771,  2.2048, -0.075,   1.975, 0.8},
    {"45\u00B0 Tilt Bar", "45\u00B0- 85 Tilt Bar", 19.59, 0.9329,  3.9288, -0.15833, 2.225, 1.183333},
    {"P-1-7/8-4",         "P-50x100",              19.51, 1.0029,  3.4786, -0.11667, 2.1,   0.916667},
    {"Reticuline",        "",                      19.53, 1.24,    2.4333, -0.10833, 2.125, 0.33333},
});
// clang-format on

/// Which of its fits a grate follows.
void tell_fit(const GrateType& grate, const char* lengths) {
    if (formula::workings != nullptr) {
        formula::note_text("the fit of \"" + std::string(grate.name) + "\" for lengths " + lengths);
    }
}

auto line_of(const GrateType& grate, const Named& length) {
    tell_fit(grate, "between 4.5 and 10 ft");
    return Named("b1", grate.b1) * length + Named("b0", grate.b0);
}

auto parabola_of(const GrateType& grate, const Named& length) {
    tell_fit(grate, "below 4.5 ft");
    return Named("c2", grate.c2) * square(length) + Named("c1", grate.c1) * length + Named("c0", grate.c0);
}

}  // namespace

const GrateType* grate_type(std::string_view text) {
    const auto* const found =
        std::find_if(grate_types.begin(), grate_types.end(), [&](const GrateType& type) {
            return text == type.name || (!text.empty() && text == type.other_name);
        });
    return found == grate_types.end() ? nullptr : found;
}

std::vector<std::string_view> grate_names() {
    std::vector<std::string_view> names;
    for (const auto& type : grate_types) {
        names.push_back(is_english() || type.other_name.empty() ? type.name : type.other_name);
    }
    return names;
}

double short_grate_length() {
    return by_units(short_grate, short_grate * meters_per_foot);
}

void read_grate_length(int number, FrontalFlow& frontal) {
    frontal.length = Reading(Column::INLETLENGTH);
    if (!is_english()) {
        step(number, frontal.Lf, [&frontal] { return frontal.length / meters_per_foot; });
    }
}

formula::Named grate_length_in_feet(const FrontalFlow& frontal) {
    return is_english() ? formula::Named(frontal.length) : formula::Named(frontal.Lf);
}

void find_frontal_efficiency(int first, FrontalFlow& frontal, const formula::Named& V) {
    const GrateType* const grate = grate_type(open_inlet.text(Column::GRATETYPE));
    if (grate == nullptr) {
        return;
    }
    auto& Vo = frontal.Vo;
    auto& Rf = frontal.Rf;
    const auto length = [&frontal] { return grate_length_in_feet(frontal); };
    const auto by_velocity = [&] { return 1.0 - splash_over * (V - Vo); };
    if (holds(first, [&] { return length() >= longest_grate; })) {
        step(first + 1, Rf, [] { return Real(1.0); });
    } else if (holds(first + 2, [&] { return length() > short_grate && length() < longest_grate; })) {
        // Only the longer grates have a limit of velocity.
        if (!holds(first + 3, [&] { return V >= Named("Vmax", grate->Vmax); })) {
            step(first + 4, Vo, [&] { return line_of(*grate, length()); });
            step(first + 5, Rf, by_velocity);
        }
    } else if (holds(first + 6, [&] { return length() > 0.0 && length() < short_grate; })) {
        step(first + 7, Vo, [&] { return parabola_of(*grate, length()); });
        step(first + 8, Rf, by_velocity);
    }
    if (holds(first + 9, [&] { return Rf > 1.0; })) {
        step(first + 10, Rf, [] { return Real(1.0); });
    }
    if (holds(first + 11, [&] { return Rf < 0.0; })) {
        step(first + 12, Rf, [] { return Real(0.0); });
    }
}

}  // namespace gullymark::engine
