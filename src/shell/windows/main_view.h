#pragma once

#include <memory>

#include <QMainWindow>

#include "shell/windows/status_panels.h"

namespace Ui {
class frmsoftwaremain;
}

namespace gullymark::shell {

/// The main window `frmsoftwaremain` on the screen.
class MainView : public QMainWindow {
  public:
    MainView();
    ~MainView() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void show_state();

    std::unique_ptr<Ui::frmsoftwaremain> ui_;
    std::unique_ptr<StatusPanels> panels_;
};

}  // namespace gullymark::shell
