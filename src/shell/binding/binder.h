#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <QObject>
#include <QWidget>

#include "platform/screen.h"
#include "shell/binding/input_filter.h"

class QKeyEvent;
class QLineEdit;
class QMouseEvent;
class QTabWidget;

namespace gullymark::shell {

/// One named thing of a window: what the logic has for it, and what the logic wants to hear of it. A function left
/// empty does nothing. At most one runs for one event of the user.
struct ScreenItem {
    std::string name;

    // what to show
    const platform::Field* field = nullptr;
    std::function<std::string()> text;  // in place of the field's text, for one whose text stands in a column
    std::function<int()> page;          // of a tab widget: the page in front
    bool captioned = false;             // the field's caption counts, else what is drawn stays
    std::size_t limit = 0;              // how many characters can be typed, 0 for any number

    // what the user does
    std::function<void(const std::string& text)> edited;   // the text is now this: typed, pasted or undone
    std::function<void(const std::string& entry)> picked;  // an entry of the list, where that is no mere edit
    std::function<void()> opened;                          // the list is about to drop down
    std::function<void()> clicked;                         // a check box or a button
    std::function<void(int page)> turned;                  // a page of a tab widget
    InputFilter filter;                                    // what may go in
    std::function<void()> entered;                         // the focus came
    std::function<bool()> leave;       // the focus is about to go; false keeps it, as does a call of `focus`
    std::function<bool()> is_entered;  // false when a command has left the field, where that can be
};

/// Binds the widgets of one window, or of a form within one, to the logic by their names.
///
/// A widget NAME or, for labels that share a text, several widgets NAME_1, NAME_2 and so on show the item NAME. Only
/// what is drawn and never changes stands outside: names that begin with "fixed_".
///
/// A field is left before the focus moves: a mouse press, a Tab, a switch of the tabs or a command first asks
/// `leave_field`, and one that is refused is swallowed. So nothing acts on a field whose text the logic rejected.
class Binder : public QObject {
  public:
    /// Throws std::logic_error that names every item without a widget and every widget without an item.
    Binder(QWidget& form, std::vector<ScreenItem> items);

    /// Puts on the screen what differs from it; part of `show_all`.
    void show();

    /// Leaves the field that the user is in, if any; false when it keeps the focus.
    bool leave_field();

    /// Gives a field the focus once the handler is through; the page that it stands on comes to the front.
    void focus(const std::string& name);
    /// Selects a field's whole text once the handler is through; the focus stays where it is.
    void select_all(const std::string& name);
    /// As the Tab key.
    void move_on();
    /// The next visit of each page begins in its first field, not in the one that the user was last in.
    void forget_visits();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Bound {
        ScreenItem item;
        std::vector<QWidget*> widgets;
    };

    void match(std::vector<ScreenItem> items);
    void watch(Bound& bound, QWidget& widget);
    void watch_list(const ScreenItem& item, QWidget& widget);

    bool filter_press(const QMouseEvent& press);
    bool filter_key(const QKeyEvent& press);
    bool takes_drop(QWidget& line);
    /// The page that a key turns to: the letter marked on its tab with Alt, or Ctrl and a page key; -1 for none.
    [[nodiscard]] int page_of(const QKeyEvent& press) const;
    void list_opened(const QWidget& popup);
    void turn_to(int page);
    /// The first visit of a page begins in its first field.
    void begin_page(int page);
    void focus_came(QWidget* widget);
    void enter_where_focus_is();
    void enter_later();
    void move_focus();
    void select_text();
    void forget_lost_field();

    [[nodiscard]] Bound* bound_to(const QObject* widget);
    [[nodiscard]] Bound* named(const std::string& name);

    QWidget& form_;
    QWidget& window_;  // that the form is or stands in
    std::vector<Bound> bound_;
    QTabWidget* tabs_ = nullptr;  // the pages of the form, where it has any
    Bound* current_ = nullptr;    // the field that was entered and not yet left
    bool held_ = false;           // the logic says itself that it is in that field
    Bound* wanted_ = nullptr;     // the field that the logic wants the focus in
    Bound* selected_ = nullptr;   // the field whose text the logic wants selected
    bool leaving_ = false;
};

/// The line in which a widget's text is typed; none for one without.
QLineEdit* line_of(QWidget& widget);

/// Puts one item on one widget, where it differs.
void put_on_screen(const ScreenItem& item, QWidget& widget);

}  // namespace gullymark::shell
