#pragma once

#include <functional>

class QWidget;

/// One event of the user runs one handler of the logic, and afterwards the windows show what it left: one turn.
namespace gullymark::shell {

/// Every window registers once what puts the logic's values on its screen, where they differ.
void add_view(std::function<void()> show);

/// Forgets all views, for a test that builds its windows anew.
void forget_views();

/// Puts the values of all windows on the screen. What that does to a widget is no event of the user: `handle` runs
/// nothing meanwhile.
void show_all();

/// True while `show_all` works.
bool showing();

/// Runs one handler and then `show_all`. A failure that the handler lets through is told in a plain box.
void handle(const std::function<void()>& handler);

/// Brings a window that is shown to the front when the logic asked for it once more: `shows` differs from what it was.
void come_to_front(QWidget& window, int shows, int& shows_before);

/// How many modal boxes, dialogs and forms were run so far: the release of a mouse button that was pressed before one is
/// lost.
int modal_rounds();

/// Counts one more; who runs one calls it first.
void count_modal_round();

}  // namespace gullymark::shell
