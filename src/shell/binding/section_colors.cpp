#include "shell/binding/section_colors.h"

#include <array>

#include "shell/binding/contrast.h"

namespace gullymark::shell {

SectionColors section_colors(const QPalette& palette) {
    const QColor paper = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const std::array on_paper{paper};
    SectionColors colors;
    colors.paper = paper;
    colors.ink = readable(text, on_paper, text_contrast);
    colors.faint = readable(between(paper, text, 0.5), on_paper, icon_contrast);
    colors.earth = between(paper, QColor(150, 112, 62), 0.32);
    colors.slab = between(paper, text, 0.2);
    colors.concrete = between(paper, text, 0.32);
    colors.metal = readable(between(paper, text, 0.8), on_paper, icon_contrast);
    colors.water = between(paper, QColor(40, 130, 225), 0.45);
    colors.beyond = between(paper, QColor(235, 60, 45), 0.45);
    const std::array by_the_water{paper, colors.water};
    colors.surface = readable(QColor(20, 90, 180), by_the_water, icon_contrast);
    const std::array by_the_beyond{paper, colors.beyond};
    const QColor red = readable(QColor(200, 25, 20), by_the_beyond, icon_contrast);
    colors.alarm = readable(red, on_paper, text_contrast);
    return colors;
}

SectionColors section_colors_on_paper() {
    QPalette paper;
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    return section_colors(paper);
}

}  // namespace gullymark::shell
