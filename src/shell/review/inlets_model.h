#pragma once

#include <functional>
#include <vector>

#include <QAbstractTableModel>

#include "review/inlet_list.h"

namespace gullymark::shell {

/// All inlets of a project, a row each, by the columns of `review/inlet_list.h`. A fresh number that differs from the one that is
/// stored has a sign before it, a color and bold letters.
class InletsModel : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Told when a heading asks for another order; who listens calls `show_rows`.
    std::function<void(review::ListColumn column, bool descending)> order_wanted;

    /// The project, which must outlive the model or the next call, and the order of its inlets.
    void show_rows(const review::Reviewed& reviewed, std::vector<std::size_t> order);

    /// The inlet of a row; nothing beyond the last.
    [[nodiscard]] std::optional<std::size_t> inlet(int row) const;
    /// The row of an inlet, -1 where it is none.
    [[nodiscard]] int row_of(std::size_t inlet) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

  private:
    [[nodiscard]] QString text(std::size_t inlet, review::ListColumn column) const;

    const review::Reviewed* reviewed_ = nullptr;
    std::vector<std::size_t> order_;
    std::vector<std::size_t> rows_;  // of each inlet
};

}  // namespace gullymark::shell
