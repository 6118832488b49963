#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <QWidget>

#include "platform/screen.h"
#include "shell/binding/input_filter.h"

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
    std::function<bool()> leave;  // the focus is about to go; false keeps it, as does `FieldFocus::give_to`
    std::function<bool()> is_entered;  // false when a command has left the field, where that can be
};

/// An item with the widgets that show it; at least one.
struct BoundItem {
    ScreenItem item;
    std::vector<QWidget*> widgets;
};

}  // namespace gullymark::shell
