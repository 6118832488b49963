#pragma once

#include <QTableView>

namespace gullymark::shell {

class RowsModel;

/// The inlet grid `frmgrid` on the screen.
class InletGridView : public QTableView {
  public:
    explicit InletGridView(QWidget* parent = nullptr);

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void show_state();

    RowsModel* rows_;
    int shown_loads_ = -1;
};

}  // namespace gullymark::shell
