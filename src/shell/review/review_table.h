#pragma once

#include <functional>

#include <QTableView>

namespace gullymark::shell {

/// A list of the reviewer's windows: rows are picked whole, the Tab key leaves it, headings sort it, Enter and a double click
/// show the row, and rows go to the clipboard as text.
class ReviewTable : public QTableView {
  public:
    explicit ReviewTable(QWidget* parent = nullptr);

    /// Told of the current row, not while `keep_place` works, and of Enter or a double click.
    std::function<void(int row)> picked;
    std::function<void()> entered;

    /// So many lines of text have room in a row.
    void set_lines(int lines);
    /// Makes a row current and the one that is marked; -1 unmarks all. Nothing is told.
    void mark(int row);
    /// Makes the columns as wide as the headings and the first rows are, within reason.
    void fit_columns();
    /// Runs `change`, which shows other rows and tells where the current one stands now (-1 where it is gone). The row that was
    /// in sight stands where it stood, else the list is scrolled as it was.
    void keep_place(const std::function<int()>& change);

    /// The marked rows as text: the headings, then a line each, with a tab between the cells. Nothing where none is marked.
    [[nodiscard]] QString marked_as_text() const;

  protected:
    void currentChanged(const QModelIndex& now, const QModelIndex& before) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void fit_rows();

    int lines_ = 1;
    bool quiet_ = false;
};

}  // namespace gullymark::shell
