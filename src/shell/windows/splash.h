#pragma once

#include <memory>

#include <QWidget>

namespace Ui {
class frmBrookSplash;
}

namespace gullymark::shell {

/// The splash `frmBrookSplash`: the picture in a frame in the middle of the screen. A key or a click unloads it.
class Splash : public QWidget {
  public:
    Splash();
    ~Splash() override;

    /// Shows the splash and paints it at once, without waiting for the user.
    void paint_now();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    std::unique_ptr<Ui::frmBrookSplash> ui_;
};

}  // namespace gullymark::shell
