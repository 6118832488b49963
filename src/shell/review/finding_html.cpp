#include "shell/review/finding_html.h"

#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>

#include "platform/characters.h"
#include "shell/binding/qt_text.h"
#include "shell/review/severity_sign.h"

namespace gullymark::shell {
namespace {

QString html_of(const review::Finding& finding, int sign) {
    const QString word = severity_text(finding.severity);
    const QString where = finding.index == review::whole_project ? QStringLiteral("The project")
                                                                 : "Inlet " + escaped_text(finding.inlet);
    return QStringLiteral(R"(<p style="margin:2px 0 6px 0"><img src="sign:%1" width="%2" height="%2"> )")
               .arg(word)
               .arg(sign) +
           QStringLiteral("<b>%1</b>, %2: %3<br>%4</p>")
               .arg(word, where, escaped_text(finding.text), escaped_text(finding.advice));
}

}  // namespace

QString escaped_text(const std::string& text) {
    constexpr std::size_t most_characters = 5000;
    return to_qt(platform::first_characters(text, most_characters)).toHtmlEscaped();
}

void show_findings(QTextBrowser& view, const std::vector<review::Finding>& findings) {
    const int sign = view.fontMetrics().height();
    constexpr int finer = 2;
    QString html;
    for (const auto& finding : findings) {
        html += html_of(finding, sign);
    }
    view.document()->clear();
    for (const auto severity :
         {review::Severity::wrong, review::Severity::beyond, review::Severity::doubtful}) {
        view.document()->addResource(QTextDocument::ImageResource, QUrl("sign:" + severity_text(severity)),
                                     severity_image(severity, view.palette(), finer * sign));
    }
    view.setHtml(html);
}

}  // namespace gullymark::shell
