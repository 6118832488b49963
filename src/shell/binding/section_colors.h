#pragma once

#include <QColor>
#include <QPalette>

namespace gullymark::shell {

/// The colors of a section. Texts and lines stand out from the paper by the contrasts of `contrast.h`.
struct SectionColors {
    QColor paper;
    QColor ink;    // texts, dimension lines, outlines
    QColor faint;  // extension lines and leaders
    QColor earth;
    QColor slab;
    QColor concrete;
    QColor metal;
    QColor water;
    QColor surface;  // the line of the water, and its hatching where it is not solved
    QColor beyond;   // the water beyond the allowable spread
    QColor alarm;    // its lines, its hatching and its text
};

/// The colors on the ground of the text fields of a palette.
[[nodiscard]] SectionColors section_colors(const QPalette& palette);

/// The colors on white paper.
[[nodiscard]] SectionColors section_colors_on_paper();

}  // namespace gullymark::shell
