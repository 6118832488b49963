#pragma once

#include <memory>
#include <string>

#include <QMainWindow>

#include "review/review_file.h"
#include "shell/review/file_follower.h"

class QTabWidget;

namespace gullymark::shell {

class CalculationPage;
class FindingsPage;
class InletPage;
class InletsPage;
class ReviewHead;
class RoadPicture;
class SizingPage;

/// The reviewer's window: what was found in a project, and the inlet that is picked. It follows the file, which is only read.
class ReviewWindow : public QMainWindow {
  public:
    ReviewWindow();

    /// Reads a project and shows it; a box tells why it cannot be read, and what was shown stays.
    void open(const std::string& path);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void build_pages();
    void build_menus();
    QAction* add_command(class QMenu& menu, const char* name, const char* caption,
                         const QList<QKeySequence>& keys, void (ReviewWindow::*command)());

    void choose_file();
    void refresh();
    void save_book();
    void save_table();
    void print_book();
    void find();
    void sort_by_severity();
    void sort_along_road();
    void copy();
    void show_previous();
    void show_next();
    void show_help();
    void show_about();

    /// Reads and judges; nothing where the user ended it.
    std::unique_ptr<review::Reviewed> read(const std::string& path);
    FileFollower::Outcome read_again(bool lasting);
    void take(std::unique_ptr<review::Reviewed> reviewed, bool same_file);
    void set_current(std::size_t inlet);
    void show_current();
    void enter_inlet();
    void tell_state();

    std::string path_;
    review::Limits limits_;
    QString read_at_;
    std::unique_ptr<review::Reviewed> shown_;
    std::size_t current_ = 0;
    QList<QAction*> of_project_;  // the commands that need one
    FileFollower follower_;
    ReviewHead* head_ = nullptr;
    QTabWidget* left_ = nullptr;
    QTabWidget* right_ = nullptr;
    FindingsPage* findings_ = nullptr;
    InletsPage* inlets_ = nullptr;
    RoadPicture* road_ = nullptr;
    InletPage* inlet_ = nullptr;
    CalculationPage* calculation_ = nullptr;
    SizingPage* sizing_ = nullptr;
};

}  // namespace gullymark::shell
