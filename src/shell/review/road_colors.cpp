#include "shell/review/road_colors.h"

#include "shell/binding/contrast.h"
#include "shell/review/severity_sign.h"

namespace gullymark::shell {

RoadColors road_colors(const QPalette& palette) {
    RoadColors colors{.section = section_colors(palette)};
    const QColor& paper = colors.section.paper;
    colors.pavement = between(paper, palette.color(QPalette::Active, QPalette::Text), 0.1);
    const std::array grounds{paper, colors.pavement};
    for (QColor* color : {&colors.section.ink, &colors.section.faint, &colors.section.alarm}) {
        *color = readable(*color, grounds, text_contrast);
    }
    colors.flow = readable(colors.section.surface, grounds, text_contrast);
    colors.marked = readable(palette.color(QPalette::Active, QPalette::Highlight), grounds, text_contrast);
    for (const auto severity :
         {review::Severity::wrong, review::Severity::beyond, review::Severity::doubtful}) {
        colors.severities.at(static_cast<std::size_t>(severity)) =
            readable(severity_color(severity, palette), grounds, text_contrast);
    }
    return colors;
}

RoadColors road_colors_on_paper() {
    QPalette paper;
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::AlternateBase, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    paper.setColor(QPalette::Highlight, QColor(20, 90, 180));
    return road_colors(paper);
}

}  // namespace gullymark::shell
