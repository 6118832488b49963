#pragma once

#include <cstddef>
#include <optional>

#include <QWidget>

#include "review/review_file.h"
#include "shell/review/review_table.h"

class QLabel;
class QLineEdit;

namespace gullymark::shell {

class CurvePlot;
class SizingModel;

/// A table whose rows go to the clipboard by Ctrl+C and by the menu of the right mouse button.
class SizingTable : public ReviewTable {
  public:
    explicit SizingTable(QWidget* parent = nullptr);

    /// The marked row with its headings; the clipboard stays as it is where none is marked.
    void copy_row() const;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

/// The page of sizing: the inlet in view with every standard of its table, and a plot of the row that is marked. Nothing is
/// stored.
class SizingPage : public QWidget {
  public:
    explicit SizingPage(QWidget* parent = nullptr);

    /// The inlet that is shown from now on; what is handed over must outlive the page or the next call. It is solved when the
    /// page is looked at.
    void show_inlet(const review::Reviewed& reviewed, std::size_t inlet);
    void clear();

    /// Copies the marked row.
    void copy() const { table_->copy_row(); }

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void build();
    void work_out_when_seen();
    void work_out();
    void take_runoff();
    void tell_what_it_is();
    void fit_columns();
    void plot_row(int row);
    [[nodiscard]] std::optional<double> area_for_length() const;
    [[nodiscard]] const engine::InletRecord& inlet() const { return reviewed_->project.inlets[inlet_]; }

    const review::Reviewed* reviewed_ = nullptr;
    std::size_t inlet_ = 0;
    bool waiting_ = false;                 // not solved yet
    std::optional<double> from_stations_;  // runoff area for each length
    QString shown_area_;                   // what the field shows of it
    QLabel* title_ = nullptr;
    QLabel* note_ = nullptr;
    QLineEdit* area_ = nullptr;
    QLabel* area_unit_ = nullptr;
    QLabel* area_source_ = nullptr;
    QWidget* area_line_ = nullptr;
    SizingTable* table_ = nullptr;
    SizingModel* model_ = nullptr;
    CurvePlot* plot_ = nullptr;
    QObject life_;  // what a field tells when it goes with the page, which is none any more, is not heard
};

}  // namespace gullymark::shell
