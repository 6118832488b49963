#pragma once

#include <QTableView>

namespace gullymark::shell {

class RowsModel;

/// The inlet grid `frmgrid` on the screen.
class InletGridView : public QTableView {
  public:
    explicit InletGridView(QWidget* parent = nullptr);

    /// Its columns stay wide enough to be read.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    // A click or a key on the row that is marked already brings its inlet back to the first page too.
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void show_state();
    void pick_again(int row_before);

    RowsModel* rows_;
    int shown_loads_ = -1;
};

}  // namespace gullymark::shell
