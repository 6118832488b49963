#pragma once

#include <QAbstractTableModel>
#include <QTableView>

namespace gullymark::shell {

/// The inlet grid `frmgrid` on the screen. A row is read when it is looked at.
class InletGridView : public QTableView {
  public:
    explicit InletGridView(QWidget* parent = nullptr);

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    class Rows;

    void show_state();

    Rows* rows_;
    int shown_loads_ = -1;
};

}  // namespace gullymark::shell
