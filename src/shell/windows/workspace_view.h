#pragma once

#include <array>
#include <memory>

#include <QAction>
#include <QMainWindow>

#include "editor/state/workspace.h"
#include "shell/windows/status_panels.h"

namespace Ui {
class MDIInlet;
}

namespace gullymark::shell {

/// The inlet workspace `MDIInlet` on the screen: the grid on the left, the design form on the right.
class WorkspaceView : public QMainWindow {
  public:
    WorkspaceView();
    ~WorkspaceView() override;

    /// As the Tab key in its design form; nothing where the focus may not leave its field.
    void move_focus_on();
    /// Shows the worked calculation of the inlet on the form, modal, and waits until it is closed.
    void show_worked_calculation();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void build_toolbar();
    void show_state();

    std::unique_ptr<Ui::MDIInlet> ui_;
    std::unique_ptr<StatusPanels> screenmode_;
    std::unique_ptr<StatusPanels> status_;
    std::array<QAction*, editor::toolbar_size> buttons_{};  // by index from 1
};

}  // namespace gullymark::shell
