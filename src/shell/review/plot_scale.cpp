#include "shell/review/plot_scale.h"

#include <algorithm>
#include <cmath>

namespace gullymark::shell {

std::vector<double> PlotScale::ticks() const {
    std::vector<double> all;
    const int count = static_cast<int>(std::lround(most / step));
    for (int i = 0; i <= count; ++i) {
        all.push_back(i * step);
    }
    return all;
}

PlotScale plot_scale(double greatest, int ticks) {
    constexpr double smallest = 1e-6;
    constexpr double largest = 1e12;
    if (!(greatest > 0)) {
        greatest = 1;
    }
    greatest = std::clamp(greatest, smallest, largest);
    const double least = greatest / std::max(ticks, 1);
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    double step = power;
    for (const double times : {1.0, 2.0, 5.0, 10.0}) {
        step = times * power;
        if (step >= least * (1 - 1e-9)) {
            break;
        }
    }
    return {.most = std::ceil(greatest / step - 1e-9) * step,
            .step = step,
            .decimals = std::clamp(static_cast<int>(-std::floor(std::log10(step) + 1e-9)), 0, 6)};
}

}  // namespace gullymark::shell
