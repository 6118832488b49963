#include "shell/review/inlets_model.h"

#include <utility>

#include <QApplication>
#include <QFont>
#include <QPalette>

#include "platform/characters.h"
#include "shell/binding/qt_text.h"
#include "shell/review/severity_sign.h"

namespace gullymark::shell {
namespace {

using review::ListColumn;
using review::Severity;

ListColumn column_at(int section) {
    return review::list_columns.at(static_cast<std::size_t>(section));
}

}  // namespace

void InletsModel::show_rows(const review::Reviewed& reviewed, std::vector<std::size_t> order) {
    beginResetModel();
    reviewed_ = &reviewed;
    order_ = std::move(order);
    rows_.resize(order_.size());
    for (std::size_t row = 0; row < order_.size(); ++row) {
        rows_[order_[row]] = row;
    }
    endResetModel();
}

std::optional<std::size_t> InletsModel::inlet(int row) const {
    return row >= 0 && row < rowCount() ? std::optional(order_[static_cast<std::size_t>(row)]) : std::nullopt;
}

int InletsModel::row_of(std::size_t inlet) const {
    return inlet < rows_.size() ? static_cast<int>(rows_[inlet]) : -1;
}

int InletsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int InletsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(review::list_columns.size());
}

QString InletsModel::text(std::size_t inlet, ListColumn column) const {
    constexpr std::size_t most_characters = 200;
    const QString text = to_qt(platform::first_characters(
        platform::on_one_line(list_cell(*reviewed_, inlet, column)), most_characters));
    return is_stale_cell(*reviewed_, inlet, column) ? QStringLiteral("\u2260 ") + text : text;
}

QVariant InletsModel::data(const QModelIndex& index, int role) const {
    const auto shown = inlet(index.row());
    if (!shown) {
        return {};
    }
    const ListColumn column = column_at(index.column());
    const bool stale = review::is_stale_cell(*reviewed_, *shown, column);
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return text(*shown, column);
        case Qt::DecorationRole:
            if (column == ListColumn::state && review::is_stale(*reviewed_, *shown)) {
                return severity_icon(reviewed_->fresh.inlets.at(*shown).solved ? Severity::beyond
                                                                               : Severity::wrong);
            }
            return {};
        case Qt::ForegroundRole:
            return stale ? QVariant(severity_color(Severity::wrong, QApplication::palette())) : QVariant();
        case Qt::FontRole:
            if (stale) {
                QFont bold = QApplication::font("QAbstractItemView");
                bold.setBold(true);
                return bold;
            }
            return {};
        case Qt::TextAlignmentRole:
            return QVariant((review::is_number_column(column) ? Qt::AlignRight : Qt::AlignLeft) |
                            Qt::AlignVCenter);
        default:
            return {};
    }
}

QVariant InletsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical || section >= columnCount()) {
        return {};
    }
    const ListColumn column = column_at(section);
    if (role == Qt::TextAlignmentRole) {
        return QVariant((review::is_number_column(column) ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    }
    const auto heading = review::heading_of(column);
    switch (role) {
        case Qt::DisplayRole: {
            // A fresh number stands beside the one that is stored.
            const QString text = to_qt(heading.text).section(' ', 0, 0);
            return heading.unit.empty() ? text : text + '\n' + to_qt(heading.unit);
        }
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return to_qt(heading.text + (heading.unit.empty() ? "" : ", " + heading.unit));
        default:
            return {};
    }
}

void InletsModel::sort(int column, Qt::SortOrder order) {
    if (order_wanted && column >= 0 && column < columnCount()) {
        order_wanted(column_at(column), order == Qt::DescendingOrder);
    }
}

}  // namespace gullymark::shell
