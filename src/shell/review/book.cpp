#include "shell/review/book.h"

#include <algorithm>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include "calculation/units_in_force.h"
#include "calculation/worked_calculation.h"
#include "review/road_plan.h"
#include "section/section.h"
#include "shell/binding/qt_text.h"
#include "shell/review/book_html.h"
#include "shell/review/book_road.h"
#include "shell/windows/calculation_html.h"
#include "shell/windows/calculation_pages.h"
#include "shell/windows/calculation_water.h"
#include "shell/windows/paper_pages.h"

namespace gullymark::shell {
namespace {

using review::Severity;

QString date_of(std::chrono::year_month_day day) {
    return QStringLiteral("%1/%2/%3")
        .arg(static_cast<unsigned>(day.month()))
        .arg(static_cast<unsigned>(day.day()))
        .arg(static_cast<int>(day.year()));
}

/// All before the inlets.
class FrontPages {
  public:
    FrontPages(const BookRequest& request, QPagedPaintDevice& device)
        : request_(request),
          plan_(review::plan_road(request.reviewed.project, request.reviewed.findings,
                                  &request.reviewed.fresh)),
          pages_(device) {
        const auto& reviewed = request.reviewed;
        pages_.add(book_title_html(reviewed, request.file, date_of(request.today)));
        pages_.add(heading_html("What to do"), true);
        for (const QString& paragraph : book_to_do_html(reviewed)) {
            pages_.add(paragraph);
        }
        pages_.add(heading_html("Balance"), true);
        pages_.add(book_balance_html(reviewed.balance));
        for (const auto severity : {Severity::wrong, Severity::beyond, Severity::doubtful}) {
            add_findings(severity);
        }
        if (!reviewed.project.inlets.empty()) {
            pages_.add(heading_html("The road"), true);
            add_road(pages_, plan_);
            add_inlets();
        }
    }

    [[nodiscard]] int count() const { return pages_.count(); }

    bool paint(QPainter& painter) const {
        return pages_.paint(painter, [this](int page, int /*count*/) {
            return PageFoot{to_qt(request_.reviewed.project.name), date_of(request_.today),
                            QStringLiteral("Page %1").arg(page)};
        });
    }

  private:
    void add_findings(Severity severity) {
        const auto& findings = request_.reviewed.findings;
        const auto is_one = [severity](const auto& finding) { return finding.severity == severity; };
        const auto count = static_cast<std::size_t>(std::ranges::count_if(findings, is_one));
        if (count == 0) {
            return;
        }
        pages_.add(book_findings_heading(severity, count), true);
        for (const auto& finding : findings) {
            if (is_one(finding)) {
                pages_.add(book_finding_html(finding));
            }
        }
    }

    void add_inlets() {
        pages_.add(heading_html("Inlets"), true);
        pages_.add(QStringLiteral("<p>Behind an arrow stands what a value would be up to date.</p>"), true);
        pages_.begin_table(book_table_head());
        for (std::size_t index = 0; index < request_.reviewed.project.inlets.size(); ++index) {
            pages_.add(book_table_row(request_.reviewed, index));
        }
        pages_.end_table();
    }

    const BookRequest& request_;
    review::RoadPlan plan_;
    PaperPages pages_;
};

/// The pages of one inlet, from a new page on; `page` is the number of the last page, and then that of its own last one.
bool paint_inlet(const BookRequest& request, std::size_t index, QPagedPaintDevice& device, QPainter& painter,
                 int& page) {
    const auto& project = request.reviewed.project;
    const auto& inlet = project.inlets[index];
    const auto document = calculation::work_out({.inlet = inlet,
                                                 .units = project.units,
                                                 .project = {.id = project.id,
                                                             .name = project.name,
                                                             .county = project.county,
                                                             .state = project.state,
                                                             .designer = project.designer},
                                                 .today = request.today});
    const auto section = section::draw_section(inlet, water_of(inlet, document));
    const CalculationPages pages(document, section, device);
    const bool painted = device.newPage() && pages.paint(painter, page + 1);
    page += pages.count();
    return painted;
}

}  // namespace

BookOutcome print_book(const BookRequest& request, QPagedPaintDevice& device) {
    const calculation::UnitsInForce units(request.reviewed.project.units);
    QPainter painter;
    const FrontPages front(request, device);
    if (!painter.begin(&device) || !front.paint(painter)) {
        return BookOutcome::refused;
    }
    int page = front.count();
    const std::size_t all = request.reviewed.project.inlets.size();
    for (std::size_t index = 0; index < all; ++index) {
        if (request.progress && !request.progress(index, all)) {
            return BookOutcome::ended;
        }
        if (!paint_inlet(request, index, device, painter, page)) {
            return BookOutcome::refused;
        }
    }
    return painter.end() ? BookOutcome::complete : BookOutcome::refused;
}

std::optional<QByteArray> book_pdf(const BookRequest& request) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    set_up_pdf(writer, "Review of " + to_qt(request.reviewed.project.name));
    if (print_book(request, writer) != BookOutcome::complete) {
        return std::nullopt;
    }
    return file.data();
}

}  // namespace gullymark::shell
