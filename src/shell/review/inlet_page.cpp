#include "shell/review/inlet_page.h"

#include <algorithm>

#include <QEvent>
#include <QLabel>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "engine/units.h"
#include "platform/characters.h"
#include "review/inlet_list.h"
#include "review/rules.h"
#include "review/summary.h"
#include "section/section.h"
#include "shell/binding/qt_text.h"
#include "shell/review/finding_html.h"
#include "shell/windows/section_picture.h"

namespace gullymark::shell {
namespace {

using engine::Column;

QString short_text(const std::string& text) {
    constexpr std::size_t most_characters = 60;
    return to_qt(platform::first_characters(platform::on_one_line(text), most_characters));
}

QString title_of(const engine::InletRecord& inlet) {
    QStringList kind;
    for (const Column column : {Column::INLET_TYPE, Column::INLET_LOCATION}) {
        if (!inlet.text(column).empty()) {
            kind << short_text(inlet.text(column));
        }
    }
    return "Inlet " + short_text(inlet.text(Column::INLET_NUMBER)) +
           (kind.isEmpty() ? QString() : ": " + kind.join(", "));
}

/// "Station 12+50  -  offset 12.000 ft RIGHT  -  Oak Street"
QString place_of(const engine::InletRecord& inlet) {
    QStringList parts;
    if (!inlet.text(Column::STATION).empty()) {
        parts << "Station " + short_text(inlet.text(Column::STATION));
    }
    if (!inlet.text(Column::OFFSET).empty()) {
        parts << (parts.isEmpty() ? "Offset " : "offset ") + short_text(inlet.text(Column::OFFSET)) + ' ' +
                     to_qt(engine::unit_text(engine::column_unit(Column::OFFSET))) + ' ' +
                     short_text(inlet.text(Column::OFFSET_LOCATION));
    }
    for (const Column column : {Column::ROADWAY, Column::INLET_SUBTYPE}) {
        if (!inlet.text(column).empty()) {
            parts << short_text(inlet.text(column));
        }
    }
    return parts.join(QStringLiteral("  \u00b7  "));
}

/// The results of an inlet that are not those of its inputs are water of another day.
section::Water water_of(const engine::InletRecord& inlet, const std::vector<review::Finding>& findings) {
    const auto water = section::water_of(inlet);
    const bool differs = std::ranges::any_of(findings, [](const review::Finding& finding) {
        return finding.rule == review::rules::result_differs.name ||
               finding.rule == review::rules::not_solved.name;
    });
    return water == section::Water::solved && differs ? section::Water::unsolved : water;
}

QLabel* inlet_line(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

}  // namespace

InletPage::InletPage(QWidget* parent)
    : QWidget(parent),
      title_(inlet_line("inlet_title")),
      place_(inlet_line("inlet_place")),
      numbers_(inlet_line("inlet_numbers")),
      told_(new QTextBrowser),
      picture_(new SectionPicture) {
    QFont bold = font();
    bold.setBold(true);
    title_->setFont(bold);
    told_->setObjectName(QStringLiteral("inlet_findings"));
    told_->setAccessibleName(QStringLiteral("Findings of this inlet"));
    told_->setOpenLinks(false);
    told_->setTabChangesFocus(true);
    told_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    picture_->setObjectName(QStringLiteral("inlet_picture"));
    picture_->draw(inlet_);
    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(told_);
    parts->addWidget(picture_);
    parts->setChildrenCollapsible(false);
    parts->setStretchFactor(1, 1);
    constexpr int lines = 9;
    parts->setSizes({lines * fontMetrics().lineSpacing(), 2 * lines * fontMetrics().lineSpacing()});
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title_);
    layout->addWidget(place_);
    layout->addWidget(numbers_);
    layout->addWidget(parts, 1);
    setFocusProxy(told_);
    clear();
}

void InletPage::show_inlet(const review::Reviewed& reviewed, std::size_t inlet) {
    inlet_ = reviewed.project.inlets[inlet];
    findings_.clear();
    std::ranges::copy_if(reviewed.findings, std::back_inserter(findings_),
                         [&](const review::Finding& finding) { return finding.index == inlet; });
    title_->setText(title_of(inlet_));
    place_->setText(place_of(inlet_));
    place_->setVisible(!place_->text().isEmpty());
    QString numbers = "Stored: " + to_qt(review::numbers_line(reviewed, inlet, false));
    if (review::is_stale(reviewed, inlet)) {
        const QString fresh = to_qt(review::numbers_line(reviewed, inlet, true));
        numbers +=
            "\nBrought up to date: " + (numbers.endsWith(": " + fresh) ? QStringLiteral("the same") : fresh);
    }
    numbers_->setText(numbers);
    numbers_->show();
    tell();
    picture_->show();
    picture_->follow(water_of(inlet_, findings_));
}

void InletPage::clear() {
    inlet_ = {};
    findings_.clear();
    title_->setText(QStringLiteral("No inlet"));
    place_->hide();
    numbers_->hide();
    told_->clear();
    picture_->hide();
}

void InletPage::tell() {
    if (findings_.empty()) {
        told_->setPlainText(QStringLiteral("Nothing was found at this inlet."));
    } else {
        show_findings(*told_, findings_);
    }
}

void InletPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !findings_.empty()) {
        tell();
    }
}

}  // namespace gullymark::shell
