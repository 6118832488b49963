#pragma once

#include <memory>

#include <QEventLoop>
#include <QMainWindow>

#include "shell/binding/binder.h"

namespace Ui {
class frmProject;
}

namespace gullymark::shell {

/// The details form `frmProject` on the screen.
class DetailsView : public QMainWindow {
  public:
    explicit DetailsView(QWidget* owner);
    ~DetailsView() override;

    /// Shows the form, modal, and waits until the logic has hidden it.
    void run();
    /// As the Tab key in the form; nothing where the focus may not leave its field.
    void move_focus_on() { binder_->focus().move_on(); }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void show_state();
    void appear();

    std::unique_ptr<Ui::frmProject> ui_;
    Binder* binder_ = nullptr;
    QEventLoop waiting_;
};

}  // namespace gullymark::shell
