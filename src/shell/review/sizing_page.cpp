#include "shell/review/sizing_page.h"

#include <algorithm>
#include <utility>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSplitter>
#include <QVBoxLayout>

#include "engine/unit_constants.h"
#include "engine/units.h"
#include "platform/number_text.h"
#include "review/flow_curve.h"
#include "review/sizing.h"
#include "review/texts.h"
#include "shell/binding/qt_text.h"
#include "shell/review/plot_curve.h"
#include "shell/review/sizing_model.h"

namespace gullymark::shell {
namespace {

using engine::Column;
using engine::Unit;

QString unit_name(Unit unit) {
    return to_qt(engine::unit_text(unit));
}

QLabel* text_label(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

}  // namespace

SizingTable::SizingTable(QWidget* parent) : ReviewTable(parent) {
    setObjectName(QStringLiteral("sizing"));
    setAccessibleName(QStringLiteral("The inlet with each standard of its table"));
}

void SizingTable::copy_row() const {
    if (const QString text = marked_as_text(); !text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

/// The window may have a command of the same key.
bool SizingTable::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        dynamic_cast<QKeyEvent&>(*event).matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return ReviewTable::event(event);
}

void SizingTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy_row();
        return;
    }
    ReviewTable::keyPressEvent(event);
}

void SizingTable::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    QAction* copy = menu.addAction(QStringLiteral("&Copy Row"));
    copy->setShortcut(QKeySequence::Copy);
    copy->setEnabled(!marked_as_text().isEmpty());
    if (menu.exec(event->globalPos()) == copy) {
        copy_row();
    }
}

SizingPage::SizingPage(QWidget* parent)
    : QWidget(parent),
      title_(text_label("sizing_title")),
      note_(text_label("sizing_note")),
      area_(new QLineEdit),
      area_unit_(new QLabel),
      area_source_(text_label("sizing_area_source")),
      area_line_(new QWidget),
      table_(new SizingTable),
      model_(new SizingModel(this)),
      plot_(new CurvePlot) {
    build();
    clear();
}

void SizingPage::build() {
    QFont bold = font();
    bold.setBold(true);
    title_->setFont(bold);
    area_->setObjectName(QStringLiteral("sizing_area"));
    area_->setMaximumWidth(fontMetrics().averageCharWidth() * 16);
    auto* caption = new QLabel(QStringLiteral("R&unoff area for each length of road"));
    caption->setBuddy(area_);
    auto* line = new QHBoxLayout;
    line->addWidget(caption);
    line->addWidget(area_);
    line->addWidget(area_unit_);
    line->addStretch(1);
    auto* lines = new QVBoxLayout(area_line_);
    lines->setContentsMargins({});
    lines->addLayout(line);
    lines->addWidget(area_source_);
    table_->setModel(model_);
    table_->picked = [this](int row) { plot_row(row); };
    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(table_);
    parts->addWidget(plot_);
    parts->setChildrenCollapsible(false);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title_);
    layout->addWidget(note_);
    layout->addWidget(area_line_);
    layout->addWidget(parts, 1);
    setFocusProxy(table_);
    connect(area_, &QLineEdit::editingFinished, &life_, [this] {
        if (area_->isModified() && reviewed_ != nullptr) {
            area_->setModified(false);
            work_out();
        }
    });
}

void SizingPage::show_inlet(const review::Reviewed& reviewed, std::size_t inlet) {
    reviewed_ = &reviewed;
    inlet_ = inlet;
    waiting_ = true;
    work_out_when_seen();
}

void SizingPage::clear() {
    reviewed_ = nullptr;
    waiting_ = false;
    title_->setText(QStringLiteral("No inlet"));
    note_->hide();
    area_line_->hide();
    model_->show_sizing({});
    plot_->show_curve({}, {}, {});
}

void SizingPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    work_out_when_seen();
}

void SizingPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        model_->show_colors();
    }
}

void SizingPage::work_out_when_seen() {
    if (waiting_ && isVisible() && reviewed_ != nullptr) {
        waiting_ = false;
        take_runoff();
        work_out();
        tell_what_it_is();
    }
}

/// What the stations tell, where they tell something; else what the user has typed stays.
void SizingPage::take_runoff() {
    const auto runoff = review::runoff_for_length(reviewed_->project, inlet_);
    from_stations_.reset();
    area_unit_->setText(unit_name(Unit::runoff_area) + " / " + unit_name(Unit::length));
    if (runoff) {
        from_stations_ = runoff->area;
        shown_area_ = to_qt(platform::format_number(runoff->area, "0.000000"));
        area_->setText(shown_area_);
        area_source_->setText(to_qt(runoff->sentence));
    } else {
        area_source_->setText(
            QStringLiteral("The stations do not tell it: type it to see how far apart inlets may stand."));
        if (area_->text() == shown_area_) {
            area_->clear();
        }
        shown_area_.clear();
    }
    area_->setModified(false);
}

/// The number that the field shows; that of the stations with all of its digits as long as nobody changes it.
std::optional<double> SizingPage::area_for_length() const {
    if (from_stations_ && area_->text() == shown_area_) {
        return from_stations_;
    }
    return review::number_of(from_qt(area_->text()));
}

void SizingPage::tell_what_it_is() {
    const auto& type = inlet().text(Column::INLET_TYPE);
    const auto& location = inlet().text(Column::INLET_LOCATION);
    const auto* const table = model_->sizing().table;
    QString title = "Inlet " + to_qt(review::told(inlet(), Column::INLET_NUMBER));
    if (table != nullptr) {
        title += ": " + to_qt(table->heading[0]) +
                 (table->heading[1].empty() ? QString() : ' ' + to_qt(table->heading[1]));
    }
    title_->setText(title);
    QStringList notes;
    if (table == nullptr) {
        notes << "There is no table of standards for: " + to_qt(type).simplified() + ", " +
                     to_qt(location).simplified() + '.';
    } else if (!engine::is_english()) {
        notes << QStringLiteral(
            "The table is in feet. A pick writes its numbers as they stand, which then count as meters: so "
            "they do here.");
    }
    if (model_->sizing().has_spread && !model_->sizing().has_area) {
        notes << QStringLiteral(
            "No discharge follows from a runoff area here: it is typed, or its area, coefficient or "
            "intensity "
            "is not above 0. So no area is searched.");
    }
    if (review::number_or_zero(inlet(), Column::ALLOWABLE_SPREAD) <= 0) {
        notes << QStringLiteral("The inlet has no allowable spread.");
    }
    note_->setText(notes.join(' '));
    note_->setVisible(!notes.isEmpty());
}

void SizingPage::work_out() {
    const QString typed = area_->text().trimmed();
    const auto area = area_for_length();
    const int before = std::max(table_->currentIndex().row(), 0);
    model_->show_sizing(review::size_inlet(inlet(), reviewed_->project.units, area));
    const auto& sizing = model_->sizing();
    area_line_->setVisible(sizing.has_spread && !sizing.in_sump);
    if (!typed.isEmpty() && (!area || !(*area > 0))) {
        area_source_->setText(QStringLiteral("This is no number above 0."));
    } else if (!from_stations_ && area) {
        area_source_->setText(QStringLiteral("As typed."));
    } else if (from_stations_ && typed != shown_area_) {
        area_source_->setText(QStringLiteral("As typed; the stations tell ") + shown_area_ + '.');
    }
    fit_columns();
    const int row = std::min(before, model_->rowCount() - 1);
    table_->mark(row);
    plot_row(row);
}

void SizingPage::fit_columns() {
    table_->resizeColumnsToContents();
}

void SizingPage::plot_row(int row) {
    const auto& rows = model_->sizing().rows;
    if (reviewed_ == nullptr || row < 0 || static_cast<std::size_t>(row) >= rows.size()) {
        return;
    }
    const auto& sized = rows[static_cast<std::size_t>(row)];
    QString title = QStringLiteral("This inlet as it stands");
    if (sized.standard != nullptr) {
        title = to_qt(sized.standard->front()).simplified();
        for (std::size_t i = 0; i < model_->sizing().table->columns.size(); ++i) {
            if (model_->sizing().table->columns[i].target == Column::GRATEPERCLOG) {
                title += ", " + to_qt(sized.fields.at(i)) + " % clogged";
            }
        }
    }
    plot_->show_curve(review::flow_curve(inlet(), reviewed_->project.units, sized.standard),
                      {.flow = unit_name(Unit::discharge),
                       .length = unit_name(Unit::length),
                       .depth = unit_name(Unit::depth)},
                      title);
}

}  // namespace gullymark::shell
