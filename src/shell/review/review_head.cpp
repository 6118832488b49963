#include "shell/review/review_head.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include "platform/characters.h"
#include "review/finding_lines.h"
#include "review/summary.h"
#include "shell/binding/qt_text.h"
#include "shell/review/severity_sign.h"

namespace gullymark::shell {
namespace {

QLabel* head_line(const char* name, const char* accessible) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setAccessibleName(QString::fromLatin1(accessible));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

QString project_line(const review::Project& project) {
    constexpr std::size_t most_characters = 80;
    QStringList parts;
    for (const std::string* text :
         {&project.name, &project.id, &project.county, &project.state, &project.designer}) {
        if (!text->empty()) {
            parts << to_qt(platform::first_characters(platform::on_one_line(*text), most_characters));
        }
    }
    return parts.isEmpty() ? QStringLiteral("A project without details")
                           : parts.join(QStringLiteral("  \u00b7  "));
}

}  // namespace

ReviewHead::ReviewHead(QWidget* parent)
    : QWidget(parent),
      project_(head_line("project", "Project")),
      counts_(head_line("counts", "Findings")),
      balance_(head_line("balance", "Balance")),
      to_do_(head_line("to_do", "What to open, solve and save")),
      warning_(new QWidget),
      warning_sign_(new QLabel),
      warning_text_(head_line("warning", "Warning")) {
    QFont bold = font();
    bold.setBold(true);
    project_->setFont(bold);
    project_->setText(QStringLiteral("No project is open"));
    counts_->setText(QStringLiteral("Open one with Ctrl+O, or drop its file on this window."));
    warning_text_->setFont(bold);
    auto* beside = new QHBoxLayout(warning_);
    beside->setContentsMargins({});
    beside->addWidget(warning_sign_);
    beside->addWidget(warning_text_, 1);
    warning_->hide();
    auto* layout = new QVBoxLayout(this);
    constexpr int gap = 2;
    layout->setSpacing(gap);
    for (QWidget* part : {static_cast<QWidget*>(project_), static_cast<QWidget*>(counts_),
                          static_cast<QWidget*>(balance_), static_cast<QWidget*>(to_do_), warning_}) {
        layout->addWidget(part);
    }
    color_warning();
}

void ReviewHead::show_project(const review::Reviewed& reviewed, const QString& file) {
    project_->setText(project_line(reviewed.project));
    project_->setToolTip(file);
    counts_->setText(to_qt(review::finding_counts(reviewed.findings, reviewed.project.inlets.size())));
    constexpr std::size_t most_told = 25;
    balance_->setText(to_qt(review::balance_line(reviewed.balance)));
    to_do_->setText(to_qt(review::to_do_line(reviewed, most_told)));
    const QString obstacle = to_qt(review::obstacle_line(reviewed));
    if (!obstacle.isEmpty()) {
        to_do_->setText(to_do_->text() + ".  " + obstacle);
    }
}

void ReviewHead::warn(const QString& text) {
    warning_text_->setText(text);
    warning_->setVisible(!text.isEmpty());
}

void ReviewHead::color_warning() {
    const QColor color = severity_color(review::Severity::beyond, palette());
    QPalette colors = warning_text_->palette();
    if (colors.color(QPalette::WindowText) != color) {
        colors.setColor(QPalette::WindowText, color);
        warning_text_->setPalette(colors);
    }
    warning_sign_->setPixmap(
        QPixmap::fromImage(severity_image(review::Severity::beyond, palette(), fontMetrics().height())));
}

void ReviewHead::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        color_warning();
    }
}

}  // namespace gullymark::shell
