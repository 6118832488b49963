#pragma once

#include <memory>

#include <QWidget>

namespace Ui {
class frminletMDIC;
}

namespace gullymark::shell {

/// The record view `frmviewinlet` on the screen: the drawing of the design form, to read only.
class RecordView : public QWidget {
  public:
    RecordView();
    ~RecordView() override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void show_state();

    std::unique_ptr<Ui::frminletMDIC> form_;
    int shows_shown_ = 0;
};

}  // namespace gullymark::shell
