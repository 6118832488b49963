#pragma once

#include <span>

#include <QColor>

/// How well a color stands out from what lies below it, by WCAG 2.1.
namespace gullymark::shell {

inline constexpr double text_contrast = 4.5;
inline constexpr double icon_contrast = 3.0;

/// The contrast ratio of two opaque colors: 1 for the same color, 21 for black and white.
double contrast(const QColor& one, const QColor& other);

/// `part` (0 to 1) of the way from one color to another.
QColor between(const QColor& from, const QColor& to, double part);

/// `color`, moved towards black or white, whichever helps, as far as it must be for the contrast `wanted` with each of
/// the grounds. Where none suffices, black or white, whichever comes nearer.
QColor readable(const QColor& color, std::span<const QColor> grounds, double wanted);

}  // namespace gullymark::shell
