#include "shell/windows/calculation_html.h"

#include <array>

#include <QStringList>

#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

using calculation::Row;

// Of the width of the page, in percent: number, formula, value, meaning, source.
constexpr std::array widths{4, 47, 13, 18, 18};

// So many letters of formula and numbers stand on one line; with more the numbers begin a new one.
constexpr qsizetype one_line_letters = 46;

constexpr const char* beside_value = R"( style="padding-left:9px")";

QString escaped(const std::string& text) {
    return to_qt(text).toHtmlEscaped();
}

bool is_word(QChar letter) {
    return letter.isLetterOrNumber() || letter == '.' || letter == '\'';
}

/// Behind `from`, which stands on a parenthesis that opens, or on a word.
qsizetype end_of_power(const QString& text, qsizetype from) {
    qsizetype at = from;
    if (at < text.size() && text[at] == '(') {
        int depth = 0;
        do {
            depth += text[at] == '(' ? 1 : text[at] == ')' ? -1 : 0;
            ++at;
        } while (at < text.size() && depth > 0);
        return at;
    }
    while (at < text.size() && is_word(text[at])) {
        ++at;
    }
    return at;
}

/// "_L" of "K_L": an index of one letter behind a symbol of one; the names of columns are longer.
bool is_index(const QString& text, qsizetype at) {
    const auto letter = [&](qsizetype i) { return i >= 0 && i < text.size() && text[i].isLetter(); };
    const auto word = [&](qsizetype i) {
        return i >= 0 && i < text.size() && (is_word(text[i]) || text[i] == '_');
    };
    return text[at] == '_' && letter(at - 1) && !word(at - 2) && letter(at + 1) && !word(at + 2);
}

QString set_formula(const QString& text) {
    QString html;
    bool quoted = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        quoted = (text[at] == '"') != quoted;
        if (!quoted && text[at] == '^') {
            const qsizetype end = end_of_power(text, at + 1);
            html += "<sup>" + set_formula(text.mid(at + 1, end - at - 1)) + "</sup>";
            at = end - 1;
        } else if (!quoted && is_index(text, at)) {
            html += "<sub>" + text.mid(++at, 1) + "</sub>";
        } else {
            html += QString(text[at]).toHtmlEscaped();
        }
    }
    return html;
}

QString cell(int column, const QString& html, const char* more = "", int span = 1) {
    int width = 0;
    for (int i = column; i < column + span; ++i) {
        width += widths.at(static_cast<std::size_t>(i));
    }
    return QStringLiteral(R"(<td width="%1%" colspan="%2"%3>%4</td>)").arg(width).arg(span).arg(more, html);
}

QString small(const QString& html) {
    return html.isEmpty() ? html : "<small>" + html + "</small>";
}

QString source_of(const Row& row) {
    QString html = escaped(row.source);
    if (row.departure != 0) {
        html += QStringLiteral(" (%1)").arg(row.departure);
    }
    return small(html);
}

QString value_of(const Row& row) {
    return escaped(row.value) + (row.unit.empty() ? QString() : ' ' + escaped(row.unit));
}

bool is_inner(const Row& row) {
    return row.kind == Row::Kind::detail || row.kind == Row::Kind::search;
}

/// So far in stands what belongs to the step above it, and the second line of a formula two blanks more.
QString indent_of(const Row& row) {
    return is_inner(row) ? QStringLiteral("&nbsp;&nbsp;&nbsp;") : QString();
}

QString new_line(const Row& row) {
    return "<br>" + indent_of(row) + "&nbsp;&nbsp;";
}

QString formula_of(const Row& row) {
    QString html = set_formula(to_qt(row.symbol));
    if (!row.formula.empty()) {
        html += " = " + formula_html(row.formula);
    }
    if (!row.numbers.empty()) {
        const bool fits = to_qt(row.symbol + row.formula + row.numbers).size() <= one_line_letters;
        html += (fits ? QStringLiteral(" ") : new_line(row)) + "= " + formula_html(row.numbers);
    }
    return html;
}

QString condition_of(const Row& row) {
    QString html = "if " + formula_html(row.formula);
    if (!row.numbers.empty()) {
        const bool fits = to_qt(row.formula + row.numbers).size() <= one_line_letters;
        html += ":" + (fits ? QStringLiteral(" ") : new_line(row)) + formula_html(row.numbers);
    }
    return html;
}

/// What stands in the column of the formulas.
QString told(const Row& row) {
    switch (row.kind) {
        case Row::Kind::input:
            return set_formula(to_qt(row.symbol)) +
                   (row.symbol == row.formula ? QString() : " = " + escaped(row.formula));
        case Row::Kind::condition:
            return condition_of(row);
        case Row::Kind::constant:
        case Row::Kind::search:
            return set_formula(to_qt(row.symbol));
        case Row::Kind::message:
            return R"(The program shows: ")" + escaped(row.remark) + '"';
        case Row::Kind::note:
            return escaped(row.remark);
        case Row::Kind::formula:
        case Row::Kind::detail:
        case Row::Kind::result:
            break;
    }
    return formula_of(row);
}

QStringList list_html(const char* heading, const std::vector<std::string>& lines, bool numbered) {
    if (lines.empty()) {
        return {};
    }
    QStringList paragraphs{heading_html(heading)};
    int number = 0;
    for (const auto& line : lines) {
        const QString mark = numbered ? QStringLiteral("(%1) ").arg(++number) : QString();
        paragraphs << R"(<p style="margin:0">)" + small(mark + escaped(line)) + "</p>";
    }
    return paragraphs;
}

QString title_block_html(const std::vector<calculation::TitleField>& fields) {
    constexpr std::size_t in_a_row = 3;
    QString html = table_html();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        html += i % in_a_row == 0 ? "<tr>" : "";
        html += R"(<td width="11%">)" + small(escaped(fields[i].label)) + R"(</td><td width="22%"><b>)" +
                escaped(fields[i].text) + "</b></td>";
        html += i % in_a_row == in_a_row - 1 || i + 1 == fields.size() ? "</tr>" : "";
    }
    return html + "</table>";
}

}  // namespace

QString formula_html(const std::string& formula) {
    return set_formula(to_qt(formula));
}

QString head_html(const calculation::Document& document) {
    QString html;
    for (const auto& warning : document.warnings) {
        html += "<p><b>" + escaped(warning) + "</b></p>";
    }
    return html + R"(<h2 style="margin:4px 0">)" + escaped(document.title) + "</h2>" +
           title_block_html(document.title_block);
}

QString row_html(const Row& row) {
    const QString number = row.step == 0 ? QString() : small(QString::number(row.step));
    QString formula = indent_of(row) + told(row);
    const bool is_told = row.kind == Row::Kind::message || row.kind == Row::Kind::note;
    if (!row.remark.empty() && !is_told) {
        formula += new_line(row) + small(escaped(row.remark));
    }
    QString html = "<tr>" + cell(0, number);
    if (is_told) {
        html += cell(1, row.kind == Row::Kind::message ? "<b>" + formula + "</b>" : formula, "", 4);
    } else {
        const QString value = row.kind == Row::Kind::result ? "<b>" + value_of(row) + "</b>" : value_of(row);
        html += cell(1, formula) + cell(2, value, R"( align="right")") +
                cell(3, small(escaped(row.meaning)), beside_value) + cell(4, source_of(row), beside_value);
    }
    return html + "</tr>";
}

QString heading_html(const std::string& heading) {
    return R"(<h3 style="margin:6px 0 1px 0">)" + escaped(heading) + "</h3>";
}

QStringList departures_html(const calculation::Document& document) {
    return list_html("Departures from the publications", document.departures, true);
}

QStringList legend_html(const calculation::Document& document) {
    return list_html("Publications", document.legend, false);
}

QString table_html() {
    return QStringLiteral(R"(<table width="100%" cellspacing="0" cellpadding="1">)");
}

QString document_html(const calculation::Document& document) {
    QString html = head_html(document);
    for (const auto& section : document.sections) {
        html += heading_html(section.heading) + table_html();
        for (const auto& row : section.rows) {
            html += row_html(row);
        }
        html += "</table>";
    }
    return html + departures_html(document).join(QString()) + legend_html(document).join(QString());
}

}  // namespace gullymark::shell
