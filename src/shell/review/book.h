#pragma once

#include <chrono>
#include <optional>

#include <QByteArray>
#include <QString>

#include "review/progress.h"
#include "review/review_file.h"

class QPagedPaintDevice;

namespace gullymark::shell {

/// What a reviewer's book is made of.
struct BookRequest {
    const review::Reviewed& reviewed;
    QString file;  // the name of the project's file
    std::chrono::year_month_day today{};
    review::Progress progress{};  // told of the inlets; false ends the book
};

enum class BookOutcome : unsigned char {
    complete,
    ended,    // by `progress`
    refused,  // the device takes no page
};

/// The book on the pages of a printer or a PDF file: title, what to do, balance, findings, the road, the table of inlets, and
/// for each inlet its section with its worked calculation, from a new page on.
BookOutcome print_book(const BookRequest& request, QPagedPaintDevice& device);

/// The book as a PDF file; nothing where `progress` ended it.
std::optional<QByteArray> book_pdf(const BookRequest& request);

}  // namespace gullymark::shell
