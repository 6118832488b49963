#include "shell/review/review_window.h"

#include <exception>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTime>
#include <QUrl>
#include <QVBoxLayout>

#include "engine/unit_constants.h"
#include "platform/failure.h"
#include "platform/file_dialog.h"
#include "platform/outside.h"
#include "review/finding_lines.h"
#include "review/finding_list.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "shell/review/calculation_page.h"
#include "shell/review/findings_page.h"
#include "shell/review/inlet_page.h"
#include "shell/review/inlets_page.h"
#include "shell/review/long_work.h"
#include "shell/review/review_head.h"
#include "shell/review/road_picture.h"
#include "shell/review/sizing_page.h"
#include "shell/review/write_review.h"
#include "store/help.h"
#include "store/project_session.h"

namespace gullymark::shell {
namespace {

constexpr QSize wanted_size{1240, 760};

QString program_title() {
    return QStringLiteral("GullymarkAL Review");
}

/// The one file that is dragged; empty for anything else.
std::string dragged_file(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls.constFirst().isLocalFile() ? from_qt(urls.constFirst().toLocalFile())
                                                               : std::string();
}

QTabWidget* tabs(const char* name, const char* accessible) {
    auto* widget = new QTabWidget;
    widget->setObjectName(QString::fromLatin1(name));
    widget->setAccessibleName(QString::fromLatin1(accessible));
    return widget;
}

}  // namespace

ReviewWindow::ReviewWindow() {
    setObjectName(QStringLiteral("review"));
    setWindowTitle(program_title());
    setAcceptDrops(true);
    build_pages();
    build_menus();
    statusBar()->setSizeGripEnabled(true);
    follower_.read = [this](bool lasting) { return read_again(lasting); };
    follower_.recovered = [this] { head_->warn({}); };
    resize(wanted_size);
}

void ReviewWindow::build_pages() {
    head_ = new ReviewHead;
    left_ = tabs("lists", "Lists");
    right_ = tabs("details", "The inlet");
    findings_ = new FindingsPage;
    inlet_ = new InletPage;
    inlets_ = new InletsPage;
    road_ = new RoadPicture;
    calculation_ = new CalculationPage;
    sizing_ = new SizingPage;
    left_->addTab(findings_, QStringLiteral("Fi&ndings"));
    left_->addTab(inlets_, QStringLiteral("In&lets"));
    left_->addTab(road_, QStringLiteral("&Road"));
    right_->addTab(inlet_, QStringLiteral("&Inlet"));
    right_->addTab(calculation_, QStringLiteral("Wor&ked Calculation"));
    right_->addTab(sizing_, QStringLiteral("Si&zing"));
    findings_->picked = [this](std::size_t inlet) { set_current(inlet); };
    inlets_->picked = findings_->picked;
    road_->picked = findings_->picked;
    findings_->entered = [this] { enter_inlet(); };
    findings_->limit_wanted = [this](const std::string& bypass) {
        limits_.bypass = bypass;
        if (shown_) {
            refresh();
        }
    };
    inlets_->entered = findings_->entered;
    road_->entered = findings_->entered;
    auto* halves = new QSplitter(Qt::Horizontal);
    halves->setObjectName(QStringLiteral("halves"));
    halves->addWidget(left_);
    halves->addWidget(right_);
    halves->setChildrenCollapsible(false);
    halves->setSizes({wanted_size.width() / 2, wanted_size.width() / 2});
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(head_);
    layout->addWidget(halves, 1);
    setCentralWidget(whole);
}

QAction* ReviewWindow::add_command(QMenu& menu, const char* name, const char* caption,
                                   const QList<QKeySequence>& keys, void (ReviewWindow::*command)()) {
    QAction* action = menu.addAction(QString::fromLatin1(caption));
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys);
    action->setMenuRole(QAction::NoRole);
    connect(action, &QAction::triggered, this,
            [this, command] { handle([this, command] { (this->*command)(); }); });
    return action;
}

void ReviewWindow::build_menus() {
    QMenu& file = *menuBar()->addMenu(QStringLiteral("&File"));
    add_command(file, "open", "&Open...", {QKeySequence::Open}, &ReviewWindow::choose_file);
    add_command(file, "refresh", "&Refresh", {Qt::Key_F5}, &ReviewWindow::refresh);
    file.addSeparator();
    for (QAction* command :
         {add_command(file, "save_book", "Save &Book as PDF...", {Qt::CTRL | Qt::SHIFT | Qt::Key_S},
                      &ReviewWindow::save_book),
          add_command(file, "save_table", "Save &Table as CSV...", {}, &ReviewWindow::save_table),
          add_command(file, "print_book", "&Print Book...", {Qt::CTRL | Qt::SHIFT | Qt::Key_P},
                      &ReviewWindow::print_book)}) {
        command->setEnabled(false);
        of_project_ << command;
    }
    file.addSeparator();
    QAction* quit = file.addAction(QStringLiteral("&Quit"), this, &QWidget::close);
    quit->setShortcut(Qt::CTRL | Qt::Key_Q);
    quit->setMenuRole(QAction::NoRole);
    QMenu& edit = *menuBar()->addMenu(QStringLiteral("&Edit"));
    add_command(edit, "copy", "&Copy Rows", {QKeySequence::Copy}, &ReviewWindow::copy);
    add_command(edit, "find", "&Find...", {QKeySequence::Find}, &ReviewWindow::find);
    QMenu& view = *menuBar()->addMenu(QStringLiteral("&View"));
    add_command(view, "by_severity", "Findings by &Severity", {}, &ReviewWindow::sort_by_severity);
    add_command(view, "along_road", "Findings Along the &Road", {}, &ReviewWindow::sort_along_road);
    view.addSeparator();
    add_command(view, "previous", "&Previous Inlet", {Qt::ALT | Qt::Key_Left, Qt::CTRL | Qt::Key_PageUp},
                &ReviewWindow::show_previous);
    add_command(view, "next", "&Next Inlet", {Qt::ALT | Qt::Key_Right, Qt::CTRL | Qt::Key_PageDown},
                &ReviewWindow::show_next);
    QMenu& help = *menuBar()->addMenu(QStringLiteral("&Help"));
    add_command(help, "help", "&Help Contents", {QKeySequence::HelpContents}, &ReviewWindow::show_help);
    add_command(help, "about", "&About", {}, &ReviewWindow::show_about);
}

void ReviewWindow::choose_file() {
    platform::FileDialog dialog{.filter = "Gullymark files (*.gmk)|*.gmk|All files|*",
                                .initial_folder = store::session.workingDirectory,
                                .title = "Open",
                                .must_exist = true};
    dialog.show_open();
    if (!dialog.file_name.empty()) {
        open(dialog.file_name);
    }
}

std::unique_ptr<review::Reviewed> ReviewWindow::read(const std::string& path) {
    LongWork work(this, "Checking " + QFileInfo(to_qt(path)).fileName());
    auto reviewed = review::review_file(
        path, limits_, [&work](std::size_t done, std::size_t all) { return work.go_on(done, all); });
    return reviewed ? std::make_unique<review::Reviewed>(std::move(*reviewed)) : nullptr;
}

void ReviewWindow::open(const std::string& path) {
    const std::string file = from_qt(QFileInfo(to_qt(path)).absoluteFilePath());
    FileFollower::State state = FileFollower::look_at(file);
    try {
        auto reviewed = read(file);
        if (reviewed) {
            const bool same = std::exchange(path_, file) == file;
            // Where all dialogs start, until the program ends.
            store::session.workingDirectory = from_qt(QFileInfo(to_qt(file)).absolutePath());
            follower_.follow(path_, std::move(state));
            take(std::move(reviewed), same);
        }
    } catch (const platform::Failure& failure) {
        platform::tell("The project cannot be read: " + std::string(failure.what()),
                       platform::BoxKind::warning);
    }
}

FileFollower::Outcome ReviewWindow::read_again(bool lasting) {
    using Outcome = FileFollower::Outcome;
    try {
        auto reviewed = read(path_);
        if (!reviewed) {
            head_->warn("Not brought up to date: this is the project as it was read at " + read_at_ +
                        ". F5 reads it anew.");
            return Outcome::given_up;
        }
        take(std::move(reviewed), true);
        return Outcome::read;
    } catch (const std::exception& failure) {
        if (lasting) {
            head_->warn("The file cannot be read right now, this is the project as it was read at " +
                        read_at_ + ": " + to_qt(failure.what()));
        }
        return Outcome::failed;
    }
}

void ReviewWindow::refresh() {
    follower_.read_now();
}

void ReviewWindow::take(std::unique_ptr<review::Reviewed> reviewed, bool same_file) {
    const std::unique_ptr<review::Reviewed> before = std::exchange(shown_, std::move(reviewed));
    engine::UnitSystem = shown_->project.units;
    engine::set_unit_defaults();
    read_at_ = QTime::currentTime().toString(QStringLiteral("hh:mm:ss"));
    const review::Reviewed* earlier = same_file ? before.get() : nullptr;
    current_ = earlier == nullptr
                   ? 0
                   : review::find_inlet_again(shown_->project, earlier->project, current_).value_or(0);
    for (QAction* command : of_project_) {
        command->setEnabled(true);
    }
    head_->show_project(*shown_, to_qt(path_));
    head_->warn({});
    findings_->show_review(*shown_, earlier);
    inlets_->show_review(*shown_, current_);
    road_->show_project(*shown_);
    show_current();
    tell_state();
}

void ReviewWindow::tell_state() {
    const QString file = QFileInfo(to_qt(path_)).fileName();
    const auto found = shown_->findings.size();
    setWindowTitle(QStringLiteral("%1 - %2 %3 - %4")
                       .arg(file)
                       .arg(found)
                       .arg(found == 1 ? "finding" : "findings", program_title()));
    statusBar()->showMessage(QStringLiteral("%1  -  read at %2, never written").arg(to_qt(path_), read_at_));
}

void ReviewWindow::set_current(std::size_t inlet) {
    if (shown_ && inlet < shown_->project.inlets.size() && inlet != current_) {
        current_ = inlet;
        show_current();
    }
}

void ReviewWindow::show_current() {
    if (current_ < shown_->project.inlets.size()) {
        inlet_->show_inlet(*shown_, current_);
        calculation_->show_inlet(*shown_, current_);
        findings_->set_current(current_);
        inlets_->set_current(current_);
        road_->set_current(current_);
        sizing_->show_inlet(*shown_, current_);
    } else {
        inlet_->clear();
        calculation_->clear();
        road_->set_current(std::nullopt);
        sizing_->clear();
    }
}

void ReviewWindow::enter_inlet() {
    right_->setCurrentWidget(inlet_);
    inlet_->setFocus();
}

void ReviewWindow::save_book() {
    shell::save_book(*this, *shown_, path_);
}

void ReviewWindow::save_table() {
    shell::save_table(*shown_);
}

void ReviewWindow::print_book() {
    shell::print_book(*this, *shown_, path_);
}

void ReviewWindow::find() {
    left_->setCurrentWidget(findings_);
    findings_->find();
}

void ReviewWindow::sort_by_severity() {
    findings_->sort(review::FindingOrder::by_severity);
}

void ReviewWindow::sort_along_road() {
    findings_->sort(review::FindingOrder::along_the_road);
}

void ReviewWindow::copy() {
    const bool of_inlets = left_->currentWidget() == inlets_;
    if (const QString text = of_inlets ? inlets_->marked_as_text() : findings_->marked_as_text();
        !text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

void ReviewWindow::show_previous() {
    if (current_ > 0) {
        set_current(current_ - 1);
    }
}

void ReviewWindow::show_next() {
    set_current(current_ + 1);
}

void ReviewWindow::show_help() {
    store::show_help();
}

void ReviewWindow::show_about() {
    platform::tell(
        "GullymarkAL Review reads a project of GullymarkAL, solves its inlets anew and tells what is wrong, "
        "beyond "
        "what is allowed, or doubtful. It never writes to the project.",
        platform::BoxKind::information);
}

void ReviewWindow::dragEnterEvent(QDragEnterEvent* event) {
    // A box that is open has the user's answer first.
    if (QApplication::activeModalWidget() == nullptr && !dragged_file(*event->mimeData()).empty()) {
        event->acceptProposedAction();
    }
}

void ReviewWindow::dropEvent(QDropEvent* event) {
    if (const std::string file = dragged_file(*event->mimeData()); !file.empty()) {
        event->acceptProposedAction();
        handle([this, file] { open(file); });
    }
}

}  // namespace gullymark::shell
