#pragma once

#include <memory>

#include <QWidget>

#include "section/water_watch.h"

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
    void show_pictures();

    std::unique_ptr<Ui::frminletMDIC> form_;
    section::WaterWatch water_;
    int shows_shown_ = 0;
};

}  // namespace gullymark::shell
