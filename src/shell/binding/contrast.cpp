#include "shell/binding/contrast.h"

#include <algorithm>
#include <cmath>

namespace gullymark::shell {
namespace {

/// The light of one channel, of the sRGB color space.
double linear(float channel) {
    const auto part = static_cast<double>(channel);
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double least_contrast(const QColor& color, std::span<const QColor> grounds) {
    double least = 21;
    for (const QColor& ground : grounds) {
        least = std::min(least, contrast(color, ground));
    }
    return least;
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor between(const QColor& from, const QColor& to, double part) {
    const auto mix = [part](float one, float other) {
        return static_cast<float>(static_cast<double>(one) + static_cast<double>(other - one) * part);
    };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

QColor readable(const QColor& color, std::span<const QColor> grounds, double wanted) {
    constexpr int steps = 20;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    const QColor& away = least_contrast(black, grounds) > least_contrast(white, grounds) ? black : white;
    for (int step = 0; step < steps; ++step) {
        const QColor moved = between(color, away, static_cast<double>(step) / steps);
        if (least_contrast(moved, grounds) >= wanted) {
            return moved;
        }
    }
    return away;
}

}  // namespace gullymark::shell
