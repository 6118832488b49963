#include "shell/review/book_html.h"

#include <algorithm>
#include <array>

#include "engine/unit_constants.h"
#include "engine/units.h"
#include "review/finding_lines.h"
#include "review/summary.h"
#include "review/texts.h"
#include "shell/binding/qt_text.h"
#include "shell/review/finding_html.h"
#include "shell/review/severity_sign.h"

namespace gullymark::shell {
namespace {

using engine::Column;

QString table() {
    return QStringLiteral(R"(<table width="100%" cellspacing="0" cellpadding="2">)");
}

QString field(const char* label, const QString& text) {
    return text.isEmpty() ? QString()
                          : QStringLiteral(R"(<tr><td width="16%"><b>%1</b></td><td>%2</td></tr>)")
                                .arg(QString::fromLatin1(label), text);
}

QString flow_row(const char* what, double flow) {
    return QStringLiteral(R"(<tr><td width="30%">%1</td><td width="15%" align="right">%2</td><td></td></tr>)")
        .arg(QString::fromLatin1(what), to_qt(review::told_flow(flow)));
}

/// A column of the table of inlets, and how much of the width it takes.
struct TableColumn {
    const char* heading;
    Column column;
    int width;
    bool is_number;
};

constexpr std::array table_columns{
    TableColumn{"Inlet", Column::INLET_NUMBER, 8, false},
    TableColumn{"Station", Column::STATION, 9, false},
    TableColumn{"Type", Column::INLET_TYPE, 11, false},
    TableColumn{"Location", Column::INLET_LOCATION, 11, false},
    TableColumn{"Standard", Column::INLET_SUBTYPE, 9, false},
    TableColumn{"Total", Column::TOTAL_DISCHARGE, 8, true},
    TableColumn{"Spread", Column::OPENSPREAD, 9, true},
    TableColumn{"Allowed", Column::ALLOWABLE_SPREAD, 7, true},
    TableColumn{"Depth", Column::CURBDEPTH, 9, true},
    TableColumn{"Intercepted", Column::QINT, 10, true},
    TableColumn{"Bypass", Column::QCARRY, 9, true},
};

QString small(const QString& html) {
    return "<small>" + html + "</small>";
}

/// What a value would be up to date.
QString now_html(const std::string& text) {
    return "<br>" +
           small("<b>\u2192 " + (text.empty() ? QStringLiteral("blank") : escaped_text(text)) + "</b>");
}

QString cell(const TableColumn& column, const QString& html) {
    return QStringLiteral(R"(<td width="%1%" align="%2">%3</td>)")
        .arg(column.width)
        .arg(column.is_number ? QStringLiteral("right") : QStringLiteral("left"), html);
}

/// In a sump the water stands at the inlet, elsewhere it runs along the curb or in the ditch.
Column shown_column(const engine::InletRecord& inlet, Column column) {
    return column == Column::CURBDEPTH && !inlet.text(Column::DEPTHATINLET).empty() ? Column::DEPTHATINLET
                                                                                    : column;
}

}  // namespace

QString book_title_html(const review::Reviewed& reviewed, const QString& file, const QString& date) {
    const auto& project = reviewed.project;
    return R"(<h1 style="margin:0 0 6px 0">Review of )" +
           (project.name.empty() ? QStringLiteral("a project without a name") : escaped_text(project.name)) +
           "</h1>" + table() + field("Project", escaped_text(project.id)) +
           field("County", escaped_text(project.county)) + field("State", escaped_text(project.state)) +
           field("Designer", escaped_text(project.designer)) + field("Units", escaped_text(project.units)) +
           field("File", file.toHtmlEscaped()) + field("Date", date) +
           field("Found", to_qt(review::finding_counts(reviewed.findings, project.inlets.size()))) +
           "</table>";
}

QStringList book_to_do_html(const review::Reviewed& reviewed) {
    const std::string line = review::to_do_line(reviewed, reviewed.project.inlets.size());
    QStringList paragraphs{"<p>" + escaped_text(line) + ".</p>"};
    for (const auto& obstacle : reviewed.fresh.obstacles) {
        paragraphs << "<p>" + escaped_text(obstacle.text) + "</p>";
    }
    return paragraphs;
}

QString book_balance_html(const review::Balance& balance) {
    return table() + flow_row("Runoff in", balance.in) + flow_row("Intercepted", balance.intercepted) +
           flow_row("Bypass that no inlet takes", balance.out) +
           flow_row("Unexplained", balance.unexplained()) + "</table><p>" +
           (balance.closes() ? "Rounding explains what is left: it may be "
                             : "Rounding does not explain it: that would be at most ") +
           to_qt(review::told_flow(balance.rounding)) + ".</p>";
}

QString book_findings_heading(review::Severity severity, std::size_t count) {
    return count == 0 ? QString()
                      : QStringLiteral(R"(<h3 style="margin:6px 0 1px 0">%1 (%2)</h3>)")
                            .arg(severity_text(severity))
                            .arg(count);
}

QString book_finding_html(const review::Finding& finding) {
    const QString where =
        finding.index == review::whole_project ? QStringLiteral("The project") : escaped_text(finding.inlet);
    return table() + R"(<tr><td width="14%"><b>)" + where + "</b></td><td>" + escaped_text(finding.text) +
           "<br><i>" + escaped_text(finding.advice) + "</i></td></tr></table>";
}

QString book_table_head() {
    QString html = table() + "<tr>";
    for (const auto& column : table_columns) {
        const auto unit = engine::unit_text(engine::column_unit(column.column));
        html += cell(column, small("<b>" + QString::fromLatin1(column.heading) + "</b>" +
                                   (unit.empty() ? QString() : "<br>" + to_qt(std::string(unit)))));
    }
    return html + "</tr></table>";
}

QString book_table_row(const review::Reviewed& reviewed, std::size_t index) {
    const auto& stored = reviewed.project.inlets[index];
    const auto& fresh = reviewed.fresh.inlet(reviewed.project, index);
    QString html = table() + "<tr>";
    for (const auto& column : table_columns) {
        const auto& text = stored.text(shown_column(stored, column.column));
        const auto& now = fresh.text(shown_column(fresh, column.column));
        html += cell(column, small(escaped_text(text)) + (text == now ? QString() : now_html(now)));
    }
    return html + "</tr></table>";
}

}  // namespace gullymark::shell
