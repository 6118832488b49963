#pragma once

#include <memory>
#include <optional>
#include <string>

#include <QWidget>

#include "section/water_watch.h"
#include "shell/binding/binder.h"

namespace Ui {
class frminletMDIC;
}

namespace gullymark::shell {

/// The inlet design form `frminletMDIC` on the screen: four pages, every field with its unit beside it.
class InletFormView : public QWidget {
  public:
    explicit InletFormView(QWidget* parent = nullptr);
    ~InletFormView() override;

    /// Binds the fields; once the form stands in its window.
    void bind();
    /// As the Tab key in the form; nothing where the focus may not leave its field.
    void move_focus_on() { binder_->focus().move_on(); }

  private:
    void carry_out_wishes();
    void follow_units();
    void show_pictures();

    std::unique_ptr<Ui::frminletMDIC> ui_;
    Binder* binder_ = nullptr;
    int begun_ = 0;  // the inlet that the pages were visited for
    section::WaterWatch water_;
    std::optional<std::string> tips_in_;  // the units that the tool tips tell
};

}  // namespace gullymark::shell
