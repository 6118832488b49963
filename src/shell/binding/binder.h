#pragma once

#include <vector>

#include <QObject>
#include <QWidget>

#include "shell/binding/field_focus.h"
#include "shell/binding/screen_item.h"

namespace gullymark::shell {

/// Binds the widgets of one window, or of a form within one, to the logic by their names.
///
/// A widget NAME or, for labels that share a text, several widgets NAME_1, NAME_2 and so on show the item NAME. Only
/// what is drawn and never changes stands outside: names that begin with "fixed_".
class Binder : public QObject {
  public:
    /// Throws std::logic_error that names every item without a widget and every widget without an item.
    Binder(QWidget& form, std::vector<ScreenItem> items);

    /// Puts on the screen what differs from it; part of `show_all`.
    void show();

    /// Which field the user is in.
    [[nodiscard]] FieldFocus& focus() { return focus_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void watch(const BoundItem& bound, QWidget& widget);
    void watch_list(const ScreenItem& item, QWidget& widget);
    void list_opened(const QWidget& popup);

    std::vector<BoundItem> bound_;
    FieldFocus focus_;
};

}  // namespace gullymark::shell
