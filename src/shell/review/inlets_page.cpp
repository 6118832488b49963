#include "shell/review/inlets_page.h"

#include <algorithm>

#include <QHeaderView>
#include <QVBoxLayout>

#include "shell/review/inlets_model.h"
#include "shell/review/review_table.h"

namespace gullymark::shell {

using review::ListColumn;

InletsPage::InletsPage(QWidget* parent)
    : QWidget(parent), model_(new InletsModel(this)), table_(new ReviewTable) {
    table_->setObjectName(QStringLiteral("inlets"));
    table_->setAccessibleName(QStringLiteral("Inlets: what they store, and what would be"));
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setWordWrap(false);
    table_->setModel(model_);
    const auto place = std::ranges::find(review::list_columns, order_) - review::list_columns.begin();
    table_->setSortingEnabled(true);
    table_->horizontalHeader()->setSortIndicator(static_cast<int>(place), Qt::AscendingOrder);
    model_->order_wanted = [this](ListColumn column, bool descending) {
        order_ = column;
        descending_ = descending;
        if (shown_ != nullptr) {
            show_review(*shown_, model_->inlet(table_->currentIndex().row()).value_or(0));
        }
    };
    table_->picked = [this](int row) {
        if (const auto inlet = model_->inlet(row); inlet && picked) {
            picked(*inlet);
        }
    };
    table_->entered = [this] {
        if (entered) {
            entered();
        }
    };
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table_);
    setFocusProxy(table_);
}

void InletsPage::show_review(const review::Reviewed& reviewed, std::size_t current) {
    const bool first = shown_ == nullptr;
    shown_ = &reviewed;
    table_->keep_place([&] {
        model_->show_rows(reviewed, review::sort_inlets(reviewed, order_, descending_));
        return model_->row_of(current);
    });
    if (first) {
        table_->fit_columns();
    }
}

void InletsPage::set_current(std::size_t inlet) {
    table_->mark(model_->row_of(inlet));
}

QString InletsPage::marked_as_text() const {
    return table_->marked_as_text();
}

}  // namespace gullymark::shell
