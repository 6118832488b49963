#include "shell/review/findings_model.h"

#include <algorithm>
#include <utility>

#include "platform/characters.h"
#include "shell/binding/qt_text.h"
#include "shell/review/severity_sign.h"

namespace gullymark::shell {
namespace {

/// A text of a project from elsewhere may be endless.
QString cell_text(const std::string& text) {
    constexpr std::size_t most_characters = 600;
    return to_qt(platform::first_characters(platform::on_one_line(text), most_characters));
}

QString column_text(const review::Finding& finding, int column) {
    switch (column) {
        case FindingsModel::severity_column:
            return severity_text(finding.severity);
        case FindingsModel::inlet_column:
            return finding.index == review::whole_project ? QStringLiteral("(project)")
                                                          : cell_text(finding.inlet);
        default:
            return cell_text(finding.text);
    }
}

}  // namespace

void FindingsModel::show(const std::vector<review::Finding>& findings, std::vector<std::size_t> chosen) {
    beginResetModel();
    findings_ = &findings;
    chosen_ = std::move(chosen);
    endResetModel();
}

const review::Finding* FindingsModel::finding(int row) const {
    return row >= 0 && row < rowCount() ? &(*findings_)[chosen_[static_cast<std::size_t>(row)]] : nullptr;
}

int FindingsModel::row_of(std::size_t finding) const {
    const auto found = std::ranges::find(chosen_, finding);
    return found == chosen_.end() ? -1 : static_cast<int>(found - chosen_.begin());
}

int FindingsModel::first_row_on(std::size_t inlet) const {
    const auto found =
        std::ranges::find_if(chosen_, [&](std::size_t i) { return (*findings_)[i].index == inlet; });
    return found == chosen_.end() ? -1 : static_cast<int>(found - chosen_.begin());
}

int FindingsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(chosen_.size());
}

int FindingsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : column_count;
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const {
    const review::Finding* shown = finding(index.row());
    if (shown == nullptr) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return column_text(*shown, index.column());
        case Qt::DecorationRole:
            return index.column() == severity_column ? QVariant(severity_icon(shown->severity)) : QVariant();
        case Qt::TextAlignmentRole:
            return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        default:
            return {};
    }
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const QStringList headings{"Severity", "Inlet", "Finding"};
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant(headings.value(section)) : QVariant();
}

void FindingsModel::sort(int column, Qt::SortOrder order) {
    using review::FindingOrder;
    if (order_wanted && column >= 0) {
        const FindingOrder wanted = column == severity_column ? FindingOrder::by_severity
                                    : column == inlet_column  ? FindingOrder::along_the_road
                                                              : FindingOrder::by_text;
        order_wanted(wanted, order == Qt::DescendingOrder);
    }
}

}  // namespace gullymark::shell
