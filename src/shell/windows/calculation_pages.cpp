#include "shell/windows/calculation_pages.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include "shell/binding/qt_text.h"
#include "shell/binding/section_colors.h"
#include "shell/binding/section_painter.h"
#include "shell/windows/calculation_html.h"

namespace gullymark::shell {
namespace {

constexpr qreal picture_inches = 2.0;

}  // namespace

CalculationPages::CalculationPages(const calculation::Document& document, const section::Section& section,
                                   QPagedPaintDevice& device)
    : document_(document), device_(device), pages_(device) {
    pages_.add(head_html(document));
    pages_.add_picture(picture_inches * pages_.inch(), [&section](QPainter& painter, const QRectF& area) {
        paint_section(painter, area, section, section_colors_on_paper());
    });
    for (const auto& part : document.sections) {
        pages_.add(heading_html(part.heading), true);
        for (const auto& row : part.rows) {
            pages_.add(table_html() + row_html(row) + "</table>");
        }
    }
    for (const auto& list : {departures_html(document), legend_html(document)}) {
        for (const QString& paragraph : list) {
            pages_.add(paragraph, &paragraph == &list.constFirst());
        }
    }
}

bool CalculationPages::paint() {
    QPainter painter;
    const auto foot = [this](int page, int count) {
        return PageFoot{"Inlet " + to_qt(document_.inlet), to_qt(document_.date),
                        QStringLiteral("Page %1 of %2").arg(page).arg(count)};
    };
    return painter.begin(&device_) && pages_.paint(painter, foot) && painter.end();
}

bool CalculationPages::paint(QPainter& painter, int first) const {
    return pages_.paint(painter, [&](int page, int /*count*/) {
        return PageFoot{"Inlet " + to_qt(document_.inlet), to_qt(document_.date),
                        QStringLiteral("Page %1").arg(first + page - 1)};
    });
}

QByteArray calculation_pdf(const calculation::Document& document, const section::Section& section) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    set_up_pdf(writer, "Worked calculation, inlet " + to_qt(document.inlet));
    CalculationPages(document, section, writer).paint();
    return file.data();
}

}  // namespace gullymark::shell
