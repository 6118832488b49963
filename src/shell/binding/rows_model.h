#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <QAbstractTableModel>
#include <QTableView>

namespace gullymark::shell {

/// What a grid of inlets shows. Rows and columns of the logic count from 1 and 0: its row 0 is the heading.
struct RowsSource {
    std::vector<std::string_view> headings;
    std::function<int()> count;
    std::function<std::string(int row, std::size_t column)> cell;
};

/// A list of inlets of the logic as a model: it shows what the list's last query read.
class RowsModel : public QAbstractTableModel {
  public:
    RowsModel(QObject* owner, RowsSource source);

    /// The rows were read anew.
    void renew();

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    RowsSource source_;
    int count_ = 0;
};

/// A table that marks whole rows, shows a model and copies the marked row as text.
void set_up_rows(QTableView& table, RowsModel& model);

/// Marks the logic's row, 0 for none; one that is out of sight becomes the first one shown.
void mark_row(QTableView& table, int row);

}  // namespace gullymark::shell
