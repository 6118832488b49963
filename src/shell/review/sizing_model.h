#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "review/sizing.h"

namespace gullymark::shell {

/// The rows of a sizing for a table: the verdict with its sign, what the standard is, and what comes of it, the units in the
/// headings. The units of the project are in force.
class SizingModel : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    void show_sizing(review::Sizing sizing);
    /// The colors follow another palette.
    void show_colors();

    [[nodiscard]] const review::Sizing& sizing() const { return sizing_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    struct Column {
        QString heading;
        QString (*text)(const review::SizedRow& row, std::size_t field);
        std::size_t field = 0;  // of the table
        bool is_text = false;   // stands left
        QString tip;
    };

    void add_table_columns();
    void add_result_columns();

    review::Sizing sizing_;
    std::vector<Column> columns_;
};

}  // namespace gullymark::shell
