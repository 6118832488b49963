#pragma once

#include <memory>

#include <QDialog>

namespace Ui {
class frminletmodify;
}

namespace gullymark::shell {

/// The dialog `frminletmodify` on the screen.
class RenumberView : public QDialog {
  public:
    explicit RenumberView(QWidget* owner);
    ~RenumberView() override;

    /// Shows the dialog, modal, and waits until the logic has hidden it.
    void run();

    void reject() override;

  private:
    void show_state();

    std::unique_ptr<Ui::frminletmodify> ui_;
};

}  // namespace gullymark::shell
