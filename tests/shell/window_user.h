#pragma once

#include <string>

#include <QWidget>

/// A user before a window: every deed is done with mouse and keyboard. Each answers false where nothing comes of it, by
/// what is seen.
namespace gullymark::roads {

/// What a window has by that name; throws std::runtime_error for a name that it does not have.
QWidget& field_of(const QWidget& window, const std::string& name);

/// Makes a window the active one, as a click on its title does, and lets everything happen that waits for that.
void bring_forward(QWidget& window);

/// A command of the menu, by its caption.
bool choose(QWidget& window, const std::string& caption);
/// A button of the tool bar or of the form, by its caption.
bool press(QWidget& window, const std::string& caption);

/// Types in place of the field's text, key by key.
bool type_into(QWidget& window, const std::string& field, const std::string& keys);
/// The same at once, from the clipboard.
bool paste_into(QWidget& window, const std::string& field, const std::string& text);
bool pick_in(QWidget& window, const std::string& field, const std::string& entry);
bool open_list(QWidget& window, const std::string& field);
bool click_on(QWidget& window, const std::string& field);

/// A key that moves on; true where the focus moves.
bool strike(QWidget& window, Qt::Key key);

/// A page by its tab, from 0.
bool turn_page(QWidget& window, int page);
/// A row of the grid or of the listing, from 1; 0 is the heading.
bool go_to_row(QWidget& window, int row);
bool double_click_row(QWidget& window, int row);

/// By the window's own button.
bool close(QWidget& window);

}  // namespace gullymark::roads
