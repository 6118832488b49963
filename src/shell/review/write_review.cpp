#include "shell/review/write_review.h"

#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>

#include "platform/outside.h"
#include "review/inlet_table.h"
#include "shell/binding/qt_text.h"
#include "shell/review/book.h"
#include "shell/review/long_work.h"
#include "shell/windows/chosen_file.h"
#include "shell/windows/paper_pages.h"

namespace gullymark::shell {
namespace {

BookRequest book_of(const review::Reviewed& reviewed, const std::string& path, LongWork& work) {
    return {.reviewed = reviewed,
            .file = QFileInfo(to_qt(path)).fileName(),
            .today = platform::today(),
            .progress = [&work](std::size_t done, std::size_t all) { return work.go_on(done, all); }};
}

}  // namespace

void save_book(QWidget& parent, const review::Reviewed& reviewed, const std::string& path) {
    const auto target = choose_file_to_write(pdf_file, "Save Book as PDF");
    if (!target) {
        return;
    }
    LongWork work(&parent, QStringLiteral("Writing the book"));
    write_chosen_file(pdf_file, *target, [&] { return book_pdf(book_of(reviewed, path, work)); });
}

void print_book(QWidget& parent, const review::Reviewed& reviewed, const std::string& path) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(letter_page());
    printer.setDocName("Review of " + to_qt(reviewed.project.name));
    QPrintDialog dialog(&printer, &parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    LongWork work(&parent, QStringLiteral("Printing the book"));
    if (print_book(book_of(reviewed, path, work), printer) == BookOutcome::refused) {
        platform::tell("The book was not printed.", platform::BoxKind::warning);
    }
}

void save_table(const review::Reviewed& reviewed) {
    const auto target = choose_file_to_write(csv_file, "Save Table as CSV");
    if (target) {
        write_chosen_file(csv_file, *target, [&] {
            const std::string csv =
                review::as_csv(review::make_inlet_table(reviewed.project, reviewed.findings, reviewed.fresh));
            return QByteArray(csv.data(), static_cast<qsizetype>(csv.size()));
        });
    }
}

}  // namespace gullymark::shell
