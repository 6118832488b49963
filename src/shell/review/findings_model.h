#pragma once

#include <functional>
#include <vector>

#include <QAbstractTableModel>

#include "review/finding_list.h"

namespace gullymark::shell {

/// The findings that a list shows, a row each: severity, inlet, sentence. Sorting a column chooses anew.
class FindingsModel : public QAbstractTableModel {
  public:
    enum Column { severity_column, inlet_column, text_column, column_count };

    using QAbstractTableModel::QAbstractTableModel;

    /// Told when a heading asks for another order; who listens calls `show`.
    std::function<void(review::FindingOrder order, bool descending)> order_wanted;

    /// The findings from now on, which must outlive the model or the next `show`, and which of them are shown.
    void show(const std::vector<review::Finding>& findings, std::vector<std::size_t> chosen);

    /// The finding of a row; null beyond the last.
    [[nodiscard]] const review::Finding* finding(int row) const;
    /// The row that shows the finding of this index, -1 where none does.
    [[nodiscard]] int row_of(std::size_t finding) const;
    /// The first row of a finding on this inlet, -1 where there is none.
    [[nodiscard]] int first_row_on(std::size_t inlet) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

  private:
    const std::vector<review::Finding>* findings_ = nullptr;
    std::vector<std::size_t> chosen_;
};

}  // namespace gullymark::shell
