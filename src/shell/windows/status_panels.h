#pragma once

#include <string>
#include <vector>

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

namespace gullymark::shell {

/// The panels of a status bar: some with text, then the date and the time, which keep themselves current.
class StatusPanels {
  public:
    /// Panel i takes `widths.at(i)` of the bar's free width, 0 for as much as its text needs. Its label is named
    /// NAME_panel1 and so on, the last two NAME_date and NAME_time.
    StatusPanels(QStatusBar& bar, const std::vector<int>& widths, bool with_clock);

    /// Shows a text in panel `number`, counted from 1.
    void show(int number, const std::string& text);

  private:
    QLabel* add(QStatusBar& bar, const QString& name, int stretch);
    void show_clock();

    std::vector<QLabel*> panels_;
    QLabel* date_ = nullptr;
    QLabel* time_ = nullptr;
    QTimer clock_;
};

}  // namespace gullymark::shell
