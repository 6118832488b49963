#include "engine/hydraulics/grate_types.h"

#include <algorithm>
#include <array>

#include "engine/unit_constants.h"

namespace gullymark::engine {
namespace {

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

void convert_grate_length(int number, FrontalFlow& frontal) {
    if (!is_english()) {
        step(number, frontal.Lf, [] { return number_in(Column::INLETLENGTH) / 0.3048; });
    }
}

Real grate_length_in_feet(const FrontalFlow& frontal) {
    return is_english() ? number_in(Column::INLETLENGTH) : frontal.Lf;
}

void find_frontal_efficiency(FrontalFlow& frontal, Real V) {
    const GrateType* const grate = grate_type(open_inlet.text(Column::GRATETYPE));
    if (grate == nullptr) {
        return;
    }
    auto& Vo = frontal.Vo;
    auto& Rf = frontal.Rf;
    const auto length = [&frontal] { return grate_length_in_feet(frontal); };
    const auto by_velocity = [&] { return 1.0 - 0.09 * (V - Vo); };
    if (holds(101, [&] { return length() >= 10.0; })) {
        step(102, Rf, [] { return Real(1.0); });
    } else if (holds(103, [&] { return length() > 4.5 && length() < 10.0; })) {
        // Only the longer grates have a limit of velocity.
        if (!holds(104, [&] { return V >= grate->Vmax; })) {
            step(105, Vo, [&] { return grate->b1 * length() + grate->b0; });
            step(106, Rf, by_velocity);
        }
    } else if (holds(107, [&] { return length() > 0.0 && length() < 4.5; })) {
        step(108, Vo, [&] { return grate->c2 * square(length()) + grate->c1 * length() + grate->c0; });
        step(109, Rf, by_velocity);
    }
    if (holds(110, [&] { return Rf > 1.0; })) {
        step(111, Rf, [] { return Real(1.0); });
    }
    if (holds(112, [&] { return Rf < 0.0; })) {
        step(113, Rf, [] { return Real(0.0); });
    }
}

}  // namespace gullymark::engine
