#pragma once

#include <QDialog>
#include <QTableWidget>

#include "catalogue/table.h"

namespace gullymark::shell {

/// The rows of a table of standards, `gratetypelist`. One row at a time can be selected, none is at first. A separator
/// is a thin strip that arrow keys pass over and a click on which leaves no row selected.
class StandardsList : public QTableWidget {
  public:
    explicit StandardsList(const catalogue::Table& table, QWidget* parent = nullptr);

    /// The selected row; a separator when none is.
    [[nodiscard]] const catalogue::Row& selected_row() const;

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void show_headings();
    void show_row(int row);
    void color_separators();

    const catalogue::Table& table_;
    int columns_width_ = 0;  // that shows every heading and text whole
};

/// The window of each of the eight tables. "Select", a double click and Enter pick the selected row into the open
/// inlet and close; a separator, or no row selected, changes nothing. "Cancel" (`gtcancel`) and Esc close alone.
class StandardsWindow : public QDialog {
  public:
    explicit StandardsWindow(const catalogue::Table& table, QWidget* parent = nullptr);
};

/// Opens the table's window over the active one and waits until it is closed.
void show_standards(const catalogue::Table& table);

}  // namespace gullymark::shell
