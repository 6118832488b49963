#include "shell/review/findings_page.h"

#include <algorithm>

#include <QCheckBox>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

#include "engine/units.h"
#include "review/texts.h"
#include "shell/binding/qt_text.h"
#include "shell/review/finding_html.h"
#include "shell/review/findings_model.h"
#include "shell/review/review_table.h"
#include "shell/review/severity_sign.h"

namespace gullymark::shell {
namespace {

using review::Finding;
using review::Severity;

constexpr std::array all_severities{Severity::wrong, Severity::beyond, Severity::doubtful};

int column_of(review::FindingOrder order) {
    switch (order) {
        case review::FindingOrder::by_severity:
            return FindingsModel::severity_column;
        case review::FindingOrder::along_the_road:
            return FindingsModel::inlet_column;
        case review::FindingOrder::by_text:
            break;
    }
    return FindingsModel::text_column;
}

/// Esc empties the line.
class FilterLine : public QLineEdit {
  public:
    FilterLine() {
        setObjectName(QStringLiteral("filter"));
        setClearButtonEnabled(true);
        setPlaceholderText(QStringLiteral("number of an inlet, or a word"));
        setAccessibleName(QStringLiteral("Find findings"));
        // A file that is dropped here is opened like anywhere on the window.
        setAcceptDrops(false);
        constexpr int most_letters = 200;
        setMaxLength(most_letters);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel) && !text().isEmpty()) {
            clear();
            return;
        }
        QLineEdit::keyPressEvent(event);
    }
};

}  // namespace

FindingsPage::FindingsPage(QWidget* parent)
    : QWidget(parent), model_(new FindingsModel(this)), table_(new ReviewTable), details_(new QTextBrowser) {
    auto* layout = new QVBoxLayout(this);
    build_choice(*layout);
    table_->setObjectName(QStringLiteral("findings"));
    table_->setAccessibleName(QStringLiteral("Findings"));
    table_->set_lines(2);
    table_->setModel(model_);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setSortingEnabled(true);
    mark_order();
    table_->picked = [this](int row) {
        show_details();
        if (const Finding* finding = model_->finding(row); finding != nullptr && picked) {
            picked(finding->index);
        }
    };
    table_->entered = [this] {
        if (current() != nullptr && entered) {
            entered();
        }
    };
    model_->order_wanted = [this](review::FindingOrder order, bool descending) {
        follow_order(order, descending);
    };
    details_->setObjectName(QStringLiteral("finding"));
    details_->setAccessibleName(QStringLiteral("The finding, and what to do about it"));
    details_->setOpenLinks(false);
    details_->setTabChangesFocus(true);
    details_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(table_);
    parts->addWidget(details_);
    parts->setStretchFactor(0, 1);
    parts->setChildrenCollapsible(false);
    constexpr int lines = 7;
    parts->setSizes({2 * lines * fontMetrics().lineSpacing(), lines * fontMetrics().lineSpacing()});
    layout->addWidget(parts, 1);
}

void FindingsPage::build_choice(QLayout& layout) {
    auto* row = new QHBoxLayout;
    auto* label = new QLabel(QStringLiteral("Find:"));
    text_ = new FilterLine;
    label->setBuddy(text_);
    row->addWidget(label);
    row->addWidget(text_, 1);
    connect(text_, &QLineEdit::textChanged, this, [this](const QString& text) {
        choice_.text = from_qt(text);
        choose();
    });
    build_limit(*row);
    auto* boxes = new QHBoxLayout;
    for (std::size_t i = 0; i < all_severities.size(); ++i) {
        auto* box = new QCheckBox;
        severities_.at(i) = box;
        box->setObjectName("severity_" + severity_text(all_severities.at(i)).toLower());
        box->setIcon(severity_icon(all_severities.at(i)));
        box->setChecked(true);
        connect(box, &QCheckBox::toggled, this, [this, severity = all_severities.at(i)](bool on) {
            if (on) {
                choice_.severities.insert(severity);
            } else {
                choice_.severities.erase(severity);
            }
            choose();
        });
        boxes->addWidget(box);
    }
    count_ = new QLabel;
    count_->setObjectName(QStringLiteral("shown_count"));
    boxes->addStretch(1);
    boxes->addWidget(count_);
    auto* both = new QVBoxLayout;
    both->addLayout(row);
    both->addLayout(boxes);
    dynamic_cast<QVBoxLayout&>(layout).addLayout(both);
    show_counts();
}

/// A bypass that no inlet takes is a finding above this flow.
void FindingsPage::build_limit(QLayout& row) {
    auto* label = new QLabel(QStringLiteral("Bypass li&mit"));
    limit_ = new QLineEdit(to_qt(limit_in_force_));
    limit_unit_ = new QLabel;
    limit_->setObjectName(QStringLiteral("bypass_limit"));
    limit_->setToolTip(QStringLiteral("A bypass that no inlet takes is a finding above this flow."));
    limit_->setAccessibleDescription(limit_->toolTip());
    limit_->setAlignment(Qt::AlignRight);
    limit_->setAcceptDrops(false);
    constexpr int letters = 7;
    limit_->setFixedWidth(letters * fontMetrics().averageCharWidth() + fontMetrics().height());
    label->setBuddy(limit_);
    for (QWidget* part :
         {static_cast<QWidget*>(label), static_cast<QWidget*>(limit_), static_cast<QWidget*>(limit_unit_)}) {
        row.addWidget(part);
    }
    connect(limit_, &QLineEdit::editingFinished, &life_, [this] { take_limit(); });
}

/// A text that is no limit gives way to the limit in force.
void FindingsPage::take_limit() {
    const std::string text = from_qt(limit_->text().trimmed());
    if (review::number_of(text).value_or(-1.0) < 0.0) {
        limit_->setText(to_qt(limit_in_force_));
    } else if (text != limit_in_force_) {
        limit_in_force_ = text;
        limit_wanted(text);
    }
}

const Finding* FindingsPage::current() const {
    return model_->finding(table_->currentIndex().row());
}

void FindingsPage::show_review(const review::Reviewed& now, const review::Reviewed* before) {
    const bool widths_known = shown_ != nullptr;
    const Finding* picked_before = before == nullptr ? nullptr : current();
    const std::optional<Finding> wanted =
        picked_before == nullptr ? std::nullopt : std::optional(*picked_before);
    shown_ = &now;
    limit_unit_->setText(to_qt(std::string(engine::unit_text(engine::Unit::discharge))));
    table_->keep_place([&] {
        model_->show(now.findings, review::choose_findings(now.findings, choice_, now.places));
        const auto found = wanted ? review::find_again(now.findings, *wanted) : std::nullopt;
        return found ? model_->row_of(*found) : -1;
    });
    if (!widths_known) {
        const int letter = fontMetrics().averageCharWidth();
        table_->resizeColumnToContents(FindingsModel::severity_column);
        table_->setColumnWidth(FindingsModel::severity_column, std::max(table_->columnWidth(0), 14 * letter));
        table_->setColumnWidth(FindingsModel::inlet_column, 12 * letter);
    }
    show_counts();
    show_details();
}

void FindingsPage::choose() {
    if (shown_ == nullptr) {
        return;
    }
    const Finding* wanted = current();
    table_->keep_place([&] {
        model_->show(shown_->findings, review::choose_findings(shown_->findings, choice_, shown_->places));
        return wanted == nullptr ? -1
                                 : model_->row_of(static_cast<std::size_t>(wanted - shown_->findings.data()));
    });
    show_counts();
    show_details();
}

void FindingsPage::show_counts() {
    for (std::size_t i = 0; i < all_severities.size(); ++i) {
        const auto found = shown_ == nullptr ? 0
                                             : std::ranges::count(shown_->findings, all_severities.at(i),
                                                                  &Finding::severity);
        const QString word = severity_text(all_severities.at(i));
        severities_.at(i)->setText('&' + word + QStringLiteral(" (%1)").arg(found));
    }
    count_->setText(shown_of_all());
}

QString FindingsPage::shown_of_all() const {
    const auto all = shown_ == nullptr ? 0 : shown_->findings.size();
    const int shown = model_->rowCount();
    return all == static_cast<std::size_t>(shown) ? QString()
                                                  : QStringLiteral("%1 of %2 shown").arg(shown).arg(all);
}

void FindingsPage::show_details() {
    const Finding* finding = current();
    if (finding != nullptr) {
        show_findings(*details_, {*finding});
    } else if (shown_ != nullptr && shown_->findings.empty()) {
        details_->setPlainText(QStringLiteral("Nothing was found."));
    } else {
        details_->clear();
    }
}

void FindingsPage::set_current(std::size_t inlet) {
    if (const Finding* finding = current(); finding == nullptr || finding->index != inlet) {
        table_->mark(model_->first_row_on(inlet));
        show_details();
    }
}

void FindingsPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && shown_ != nullptr) {
        show_details();  // the sign of the severity is a picture
    }
}

void FindingsPage::find() {
    text_->setFocus(Qt::ShortcutFocusReason);
    text_->selectAll();
}

void FindingsPage::sort(review::FindingOrder order) {
    table_->sortByColumn(column_of(order), Qt::AscendingOrder);
}

void FindingsPage::follow_order(review::FindingOrder order, bool descending) {
    choice_.order = order;
    choice_.descending = descending;
    choose();
}

void FindingsPage::mark_order() {
    table_->horizontalHeader()->setSortIndicator(column_of(choice_.order), Qt::AscendingOrder);
}

QString FindingsPage::marked_as_text() const {
    return table_->marked_as_text();
}

}  // namespace gullymark::shell
