#pragma once

#include <string>
#include <vector>

#include <QObject>
#include <QWidget>

#include "shell/binding/screen_item.h"

class QKeyEvent;
class QMouseEvent;
class QTabWidget;

namespace gullymark::shell {

/// Which of a window's fields the user is in, and how the focus goes from one to another.
///
/// A field is left before the focus moves: a mouse press, a Tab, a switch of the tabs or a command first asks
/// `leave_field`, and one that is refused is swallowed. So nothing acts on a field whose text the logic rejected.
class FieldFocus : public QObject {
  public:
    /// `bound` outlives this and stays as it is. The tabs of the form, where it has any, are one of its widgets.
    FieldFocus(QWidget& window, const std::vector<BoundItem>& bound);

    /// Gives a field the focus once the handler is through; the page that it stands on comes to the front. A name of no
    /// field changes nothing.
    void give_to(const std::string& name);
    /// Selects a field's whole text once the handler is through; the focus stays where it is.
    void select_all(const std::string& name);
    /// As the Tab key.
    void move_on();
    /// The next visit of each page begins in its first field, not in the one that the user was last in.
    void forget_visits();

    /// After the handler and what it changed on the screen: carries out `give_to` and `select_all`, and lets go of a field
    /// that a command has left or that cannot hold the focus any more.
    void settle();
    /// A page has come to the front: its first visit begins in its first field.
    void begin_page(int page);
    /// True when a text may be dropped into `line`: the field before was left, and this one has the focus now.
    bool takes_drop(QWidget& line);

  protected:
    /// Of the window itself, which sees every event before any widget does.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Leaves the field that the user is in, if any; false when it keeps the focus.
    bool leave_field();
    bool filter_press(const QMouseEvent& press);
    bool filter_key(const QKeyEvent& press);
    /// The page that a key turns to: the letter marked on its tab with Alt, or Ctrl and a page key; -1 for none.
    [[nodiscard]] int page_of(const QKeyEvent& press) const;
    void turn_to(int page);
    void focus_came(QWidget* widget);
    void enter_where_focus_is();
    void enter_later();
    void move_focus();
    void select_text();
    void forget_lost_field();

    [[nodiscard]] const BoundItem* named(const std::string& name) const;

    QWidget& window_;
    const std::vector<BoundItem>& bound_;
    QTabWidget* tabs_ = nullptr;           // the pages of the form, where it has any
    const BoundItem* current_ = nullptr;   // the field that was entered and not yet left
    bool held_ = false;                    // the logic says itself that it is in that field
    const BoundItem* wanted_ = nullptr;    // the field that the logic wants the focus in
    const BoundItem* selected_ = nullptr;  // the field whose text the logic wants selected
    bool leaving_ = false;
};

/// The item that a widget shows; null for a widget of none.
const BoundItem* item_of(const std::vector<BoundItem>& bound, const QObject* widget);

}  // namespace gullymark::shell
