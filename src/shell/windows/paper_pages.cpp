#include "shell/windows/paper_pages.h"

#include <utility>

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QTextOption>

namespace gullymark::shell {
namespace {

constexpr qreal text_points = 7.8;
constexpr qreal foot_points = 7.5;
constexpr qreal picture_points = 7.5;
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
        if (used > 0.0 && (blocks[i].begins_page || used + needed > room)) {
            pages.push_back(i);
            used = blocks[i].head;
        }
        used += blocks[i].height;
    }
    return pages;
}

void PaperPages::add(const QString& html, bool is_heading) {
    auto text = std::make_unique<QTextDocument>();
    text->setDocumentMargin(0);
    text->setDefaultFont(page_font(text_points));
    text->setUseDesignMetrics(true);
    text->setDefaultTextOption(break_anywhere());
    text->documentLayout()->setPaintDevice(&device_);
    text->setHtml(html);
    text->setTextWidth(page_size(device_).width());
    const qreal gap = is_heading ? heading_gap_inches * device_.logicalDpiY() : 0.0;
    const qreal height = gap + text->size().height();
    add({.text = std::move(text), .picture = {}, .gap = gap, .height = height, .keeps_next = is_heading});
}

void PaperPages::add_picture(qreal height, std::function<void(QPainter&, const QRectF&)> paint) {
    add({.text = nullptr, .picture = std::move(paint), .height = height});
}

QFontMetricsF PaperPages::picture_font() const {
    return {page_font(picture_points), &device_};
}

qreal PaperPages::width() const {
    return page_size(device_).width();
}

qreal PaperPages::inch() const {
    return device_.logicalDpiY();
}

void PaperPages::add(Block block) {
    block.begins_page = std::exchange(begins_page_, false);
    block.head = head_;
    blocks_.push_back(std::move(block));
}

void PaperPages::begin_table(const QString& head) {
    head_ = no_head;
    add(head);
    blocks_.back().keeps_next = true;
    head_ = blocks_.size() - 1;
}

std::vector<std::size_t> PaperPages::first_of_pages() const {
    std::vector<BlockSize> sizes;
    for (const Block& block : blocks_) {
        const qreal head = block.head == no_head ? 0.0 : blocks_[block.head].height;
        sizes.push_back({block.height, block.keeps_next, block.begins_page, head});
    }
    return first_blocks(sizes, page_size(device_).height() - foot_inches * device_.logicalDpiY());
}

int PaperPages::count() const {
    return static_cast<int>(first_of_pages().size());
}

bool PaperPages::paint(QPainter& painter, const std::function<PageFoot(int page, int count)>& foot) const {
    const auto pages = first_of_pages();
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (page > 0 && !device_.newPage()) {
            return false;
        }
        paint_blocks(painter, pages[page], page + 1 < pages.size() ? pages[page + 1] : blocks_.size());
        paint_foot(painter, foot(static_cast<int>(page) + 1, static_cast<int>(pages.size())));
    }
    return true;
}

void PaperPages::paint_blocks(QPainter& painter, std::size_t from, std::size_t end) const {
    painter.save();
    if (blocks_[from].head != no_head) {
        paint_block(painter, blocks_[blocks_[from].head]);
    }
    for (std::size_t i = from; i < end; ++i) {
        paint_block(painter, blocks_[i]);
    }
    painter.restore();
}

void PaperPages::paint_block(QPainter& painter, const Block& block) const {
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = paper();
    if (block.text) {
        painter.translate(0.0, block.gap);
        block.text->documentLayout()->draw(&painter, context);
    } else {
        painter.setFont(page_font(picture_points));
        block.picture(painter, QRectF(QPointF(), QSizeF(page_size(device_).width(), block.height)));
    }
    painter.translate(0.0, block.height - block.gap);
}

void PaperPages::paint_foot(QPainter& painter, const PageFoot& foot) const {
    const QSizeF size = page_size(device_);
    const QRectF line(0.0, size.height() - foot_inches * device_.logicalDpiY(), size.width(),
                      foot_inches * device_.logicalDpiY());
    painter.setFont(page_font(foot_points));
    painter.setPen(Qt::black);
    const int low = Qt::AlignBottom | Qt::TextSingleLine;
    painter.drawText(line, low | Qt::AlignLeft, foot.left);
    painter.drawText(line, low | Qt::AlignHCenter, foot.middle);
    painter.drawText(line, low | Qt::AlignRight, foot.right);
}

QPageLayout letter_page() {
    constexpr qreal side = 0.6;
    return {QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(side, side, side, side),
            QPageLayout::Inch};
}

void set_up_pdf(QPdfWriter& writer, const QString& title) {
    writer.setTitle(title);
    writer.setResolution(pdf_resolution);
    writer.setPageLayout(letter_page());
}

}  // namespace gullymark::shell
