#include "shell/windows/calculation_pages.h"

#include <utility>

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QTextOption>

#include "shell/binding/qt_text.h"
#include "shell/binding/section_colors.h"
#include "shell/binding/section_painter.h"
#include "shell/windows/calculation_html.h"

namespace gullymark::shell {
namespace {

constexpr qreal text_points = 7.8;
constexpr qreal foot_points = 7.5;
constexpr qreal picture_points = 7.5;
constexpr qreal picture_inches = 2.0;
constexpr qreal foot_inches = 0.3;
constexpr qreal heading_gap_inches = 0.05;
constexpr int pdf_resolution = 600;

QFont page_font(qreal points) {
    QFont font;
    font.setPointSizeF(points);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// A number of hundreds of digits takes several lines.
QTextOption break_anywhere() {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

/// What is printed is black on white, whatever the desktop's palette.
QPalette paper() {
    QPalette palette(Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText}) {
        palette.setColor(role, Qt::black);
    }
    return palette;
}

QSizeF page_size(const QPagedPaintDevice& device) {
    return {static_cast<qreal>(device.width()), static_cast<qreal>(device.height())};
}

}  // namespace

std::vector<std::size_t> first_blocks(const std::vector<BlockSize>& blocks, qreal room) {
    std::vector<std::size_t> pages{0};
    qreal used = 0.0;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        qreal needed = blocks[i].height;
        for (std::size_t last = i; blocks[last].keeps_next && last + 1 < blocks.size(); ++last) {
            needed += blocks[last + 1].height;
        }
        if (used > 0.0 && used + needed > room) {
            pages.push_back(i);
            used = 0.0;
        }
        used += blocks[i].height;
    }
    return pages;
}

CalculationPages::CalculationPages(const calculation::Document& document, const section::Section& section,
                                   QPagedPaintDevice& device)
    : document_(document), section_(section), device_(device) {
    add(head_html(document));
    add_picture();
    for (const auto& part : document.sections) {
        add(heading_html(part.heading), true);
        for (const auto& row : part.rows) {
            add(table_html() + row_html(row) + "</table>");
        }
    }
    for (const auto& list : {departures_html(document), legend_html(document)}) {
        for (const QString& paragraph : list) {
            add(paragraph, &paragraph == &list.constFirst());
        }
    }
    break_into_pages();
}

void CalculationPages::add(const QString& html, bool keeps_next) {
    auto text = std::make_unique<QTextDocument>();
    text->setDocumentMargin(0);
    text->setDefaultFont(page_font(text_points));
    text->setUseDesignMetrics(true);
    text->setDefaultTextOption(break_anywhere());
    text->documentLayout()->setPaintDevice(&device_);
    text->setHtml(html);
    text->setTextWidth(page_size(device_).width());
    const qreal gap = keeps_next ? heading_gap_inches * device_.logicalDpiY() : 0.0;
    const qreal height = gap + text->size().height();
    blocks_.push_back({.text = std::move(text), .gap = gap, .height = height, .keeps_next = keeps_next});
}

void CalculationPages::add_picture() {
    blocks_.push_back({.text = nullptr, .height = picture_inches * device_.logicalDpiY()});
}

void CalculationPages::break_into_pages() {
    std::vector<BlockSize> sizes;
    for (const Block& block : blocks_) {
        sizes.push_back({block.height, block.keeps_next});
    }
    pages_ = first_blocks(sizes, page_size(device_).height() - foot_inches * device_.logicalDpiY());
}

bool CalculationPages::paint() {
    QPainter painter;
    if (!painter.begin(&device_)) {
        return false;
    }
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        if (page > 0 && !device_.newPage()) {
            return false;
        }
        paint_page(painter, page);
        paint_foot(painter, page);
    }
    return painter.end();
}

void CalculationPages::paint_page(QPainter& painter, std::size_t page) const {
    const std::size_t end = page + 1 < pages_.size() ? pages_[page + 1] : blocks_.size();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = paper();
    painter.save();
    for (std::size_t i = pages_[page]; i < end; ++i) {
        const Block& block = blocks_[i];
        if (block.text) {
            painter.translate(0.0, block.gap);
            block.text->documentLayout()->draw(&painter, context);
        } else {
            painter.setFont(page_font(picture_points));
            paint_section(painter, QRectF(QPointF(), QSizeF(page_size(device_).width(), block.height)),
                          section_, section_colors_on_paper());
        }
        painter.translate(0.0, block.height - block.gap);
    }
    painter.restore();
}

void CalculationPages::paint_foot(QPainter& painter, std::size_t page) const {
    const QSizeF size = page_size(device_);
    const QRectF foot(0.0, size.height() - foot_inches * device_.logicalDpiY(), size.width(),
                      foot_inches * device_.logicalDpiY());
    painter.setFont(page_font(foot_points));
    painter.setPen(Qt::black);
    const int low = Qt::AlignBottom | Qt::TextSingleLine;
    painter.drawText(foot, low | Qt::AlignLeft, "Inlet " + to_qt(document_.inlet));
    painter.drawText(foot, low | Qt::AlignHCenter, to_qt(document_.date));
    painter.drawText(foot, low | Qt::AlignRight,
                     QStringLiteral("Page %1 of %2").arg(page + 1).arg(pages_.size()));
}

QByteArray calculation_pdf(const calculation::Document& document, const section::Section& section) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setTitle("Worked calculation, inlet " + to_qt(document.inlet));
    writer.setResolution(pdf_resolution);
    writer.setPageLayout(letter_page());
    CalculationPages(document, section, writer).paint();
    return file.data();
}

QPageLayout letter_page() {
    constexpr qreal side = 0.6;
    return {QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(side, side, side, side),
            QPageLayout::Inch};
}

}  // namespace gullymark::shell
