#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QFontMetricsF>
#include <QPageLayout>
#include <QString>
#include <QTextDocument>

class QPagedPaintDevice;
class QPainter;
class QPdfWriter;

namespace gullymark::shell {

/// What is never broken: a line, or a heading, which stands on the page of the next one.
struct BlockSize {
    qreal height = 0.0;
    bool keeps_next = false;
    bool begins_page = false;
    qreal head = 0.0;  // of the table it belongs to, which stands again above it at the top of a page
};

/// The first block of each page, for pages with that much room; one that is higher than a page has a page of its own.
std::vector<std::size_t> first_blocks(const std::vector<BlockSize>& blocks, qreal room);

/// What stands at the foot of a page.
struct PageFoot {
    QString left;
    QString middle;
    QString right;
};

/// Texts and pictures one below the other on the pages of a printer or a PDF file, black on white. A block stands whole on
/// one page, a heading on the page of the block below it.
class PaperPages {
  public:
    /// For a device, whose page size and margins count; it must outlive the pages.
    explicit PaperPages(QPagedPaintDevice& device) : device_(device) {}

    /// A text; a heading keeps the next block on its page.
    void add(const QString& html, bool is_heading = false);
    /// A picture as wide as the page and so high, in the device's own unit; it is painted into the rectangle, in the font
    /// of pictures.
    void add_picture(qreal height, std::function<void(QPainter&, const QRectF&)> paint);
    [[nodiscard]] QFontMetricsF picture_font() const;
    /// The width of a page, and an inch, in the device's own unit.
    [[nodiscard]] qreal width() const;
    [[nodiscard]] qreal inch() const;
    /// The next block begins a page.
    void begin_page() { begins_page_ = true; }
    /// The head of a table: it stands above the next blocks, on each of their pages.
    void begin_table(const QString& head);
    void end_table() { head_ = no_head; }

    [[nodiscard]] int count() const;

    /// Paints all pages. The painter stands on a page of the device that is still empty. False where the device takes no
    /// further page. `foot` is asked for each page, counted from 1.
    bool paint(QPainter& painter, const std::function<PageFoot(int page, int count)>& foot) const;

  private:
    static constexpr std::size_t no_head = static_cast<std::size_t>(-1);

    struct Block {
        std::unique_ptr<QTextDocument> text;  // null for a picture
        std::function<void(QPainter&, const QRectF&)> picture;
        qreal gap = 0.0;     // above a heading
        qreal height = 0.0;  // with the gap
        bool keeps_next = false;
        bool begins_page = false;
        std::size_t head = no_head;  // the block that stands again above it at the top of a page
    };

    void add(Block block);
    [[nodiscard]] std::vector<std::size_t> first_of_pages() const;
    void paint_blocks(QPainter& painter, std::size_t from, std::size_t end) const;
    void paint_block(QPainter& painter, const Block& block) const;
    void paint_foot(QPainter& painter, const PageFoot& foot) const;

    QPagedPaintDevice& device_;
    std::vector<Block> blocks_;
    bool begins_page_ = false;
    std::size_t head_ = no_head;
};

/// A Letter page with its margins.
QPageLayout letter_page();

/// Readies a PDF file for such pages.
void set_up_pdf(QPdfWriter& writer, const QString& title);

}  // namespace gullymark::shell
