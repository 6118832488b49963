#pragma once

#include <QByteArray>

#include "calculation/document.h"
#include "section/section.h"
#include "shell/windows/paper_pages.h"

namespace gullymark::shell {

/// The worked calculation on the pages of a printer or a PDF file. A line stands whole on one page, a heading on the page of
/// the first line below it; each page tells the inlet, the date and its number.
class CalculationPages {
  public:
    /// Lays the pages out for a device, whose page size and margins count.
    CalculationPages(const calculation::Document& document, const section::Section& section,
                     QPagedPaintDevice& device);

    [[nodiscard]] int count() const { return pages_.count(); }
    /// False where the device takes no page.
    bool paint();
    /// Paints them behind other pages, from an empty page on; the first has the number `first`.
    bool paint(QPainter& painter, int first) const;

  private:
    const calculation::Document& document_;
    QPagedPaintDevice& device_;
    PaperPages pages_;
};

/// The pages as a PDF file.
QByteArray calculation_pdf(const calculation::Document& document, const section::Section& section);

}  // namespace gullymark::shell
