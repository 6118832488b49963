#pragma once

#include <vector>

#include <QString>

namespace gullymark::shell {

/// One axis of a plot: from 0 to a round number, with ticks at round numbers.
struct PlotScale {
    double most = 1;
    double step = 1;
    int decimals = 0;

    [[nodiscard]] std::vector<double> ticks() const;
    [[nodiscard]] QString text(double tick) const { return QString::number(tick, 'f', decimals); }
};

/// The scale that holds `greatest` with about so many ticks; for 0, a negative or no number one up to 1.
[[nodiscard]] PlotScale plot_scale(double greatest, int ticks);

}  // namespace gullymark::shell
