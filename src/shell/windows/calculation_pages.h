#pragma once

#include <memory>
#include <vector>

#include <QByteArray>
#include <QPageLayout>
#include <QTextDocument>

#include "calculation/document.h"
#include "section/section.h"

class QPagedPaintDevice;
class QPainter;

namespace gullymark::shell {

/// What is never broken: a line, or a heading, which stands on the page of the next one.
struct BlockSize {
    qreal height = 0.0;
    bool keeps_next = false;
};

/// The first block of each page, for pages with that much room; one that is higher than a page has a page of its own.
std::vector<std::size_t> first_blocks(const std::vector<BlockSize>& blocks, qreal room);

/// The worked calculation on the pages of a printer or a PDF file. A line stands whole on one page, a heading on the page of
/// the first line below it; each page tells the inlet, the date and its number.
class CalculationPages {
  public:
    /// Lays the pages out for a device, whose page size and margins count.
    CalculationPages(const calculation::Document& document, const section::Section& section,
                     QPagedPaintDevice& device);

    [[nodiscard]] int count() const { return static_cast<int>(pages_.size()); }
    /// False where the device takes no page.
    bool paint();

  private:
    struct Block {
        std::unique_ptr<QTextDocument> text;  // null for the picture
        qreal gap = 0.0;                      // above a heading
        qreal height = 0.0;                   // with the gap
        bool keeps_next = false;              // a heading
    };

    void add(const QString& html, bool keeps_next = false);
    void add_picture();
    void break_into_pages();
    void paint_page(QPainter& painter, std::size_t page) const;
    void paint_foot(QPainter& painter, std::size_t page) const;

    const calculation::Document& document_;
    const section::Section& section_;
    QPagedPaintDevice& device_;
    std::vector<Block> blocks_;
    std::vector<std::size_t> pages_;  // the first block of each
};

/// A Letter page with its margins.
QPageLayout letter_page();

/// The pages as a PDF file.
QByteArray calculation_pdf(const calculation::Document& document, const section::Section& section);

}  // namespace gullymark::shell
