#pragma once

#include <memory>

#include <QMainWindow>

namespace Ui {
class frminletflex;
}

namespace gullymark::shell {

class RowsModel;

/// The listing window `frminletflex` on the screen.
class ListView : public QMainWindow {
  public:
    ListView();
    ~ListView() override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    /// Hears a double click where no row is.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build_rows();
    void show_state();

    std::unique_ptr<Ui::frminletflex> ui_;
    RowsModel* rows_ = nullptr;
    int loads_shown_ = 0;
    int shows_shown_ = 0;
};

}  // namespace gullymark::shell
