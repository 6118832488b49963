#pragma once

class QTabWidget;

/// Windows and pages on a screen that is smaller than they are.
namespace gullymark::shell {

/// Every window and dialog that opens from now on is no larger than the available screen, its frame included.
void keep_windows_on_screen();

/// Each page of `tabs` scrolls where it does not fit, and a field on it that gets the focus comes into sight. With the
/// focus in the tabs themselves, where it is when no field takes it, the keys up and down scroll the page in front, by
/// lines or pages; with Shift they go to its sides.
void scroll_pages(QTabWidget& tabs);

}  // namespace gullymark::shell
