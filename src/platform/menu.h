#pragma once

#include <string_view>

#include "platform/screen.h"

/// A window's menu as one table, from which the shell builds the menu bar.
namespace gullymark::platform {

/// The caption of a separator.
inline constexpr std::string_view menu_separator = "-";

template <class Window>
struct MenuItem {
    std::string_view name;
    std::string_view caption;    // with & before the letter of its shortcut
    std::string_view menu;       // the name of the menu that it stands in; empty for one of the menu bar
    void (*action)() = nullptr;  // what choosing it runs; none for a menu or a separator
    Field Window::*field =
        nullptr;  // where the logic enables and disables it; none when it is always enabled
};

}  // namespace gullymark::platform
