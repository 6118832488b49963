#include "shell/review/file_follower.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QFileInfo>

#include "platform/file_marks.h"
#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

constexpr int look_milliseconds = 300;
/// One save gives several notices.
constexpr int soon_milliseconds = 40;

bool user_is_asked() {
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
}

}  // namespace

FileFollower::FileFollower(QObject* parent) : QObject(parent) {
    clock_.start();
    soon_.setSingleShot(true);
    soon_.setInterval(soon_milliseconds);
    looks_.setInterval(look_milliseconds);
    const auto noticed = [this] {
        if (!soon_.isActive()) {
            soon_.start();
        }
    };
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, noticed);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, noticed);
    connect(&soon_, &QTimer::timeout, this, [this] { look(); });
    connect(&looks_, &QTimer::timeout, this, [this] { look(); });
}

FileFollower::State FileFollower::look_at(const std::string& path) {
    return platform::look_at_state(path);
}

void FileFollower::follow(const std::string& path, State state) {
    if (const QStringList watched = watcher_.files() + watcher_.directories(); !watched.isEmpty()) {
        watcher_.removePaths(watched);
    }
    path_ = path;
    shown_ = std::move(state);
    failing_ = given_up_ = false;
    watch();
    looks_.start();
}

/// A file that is replaced or deleted loses its watch.
void FileFollower::watch() {
    const QFileInfo file(to_qt(path_));
    const QString folder = file.absolutePath();
    if (file.exists() && !watcher_.files().contains(file.absoluteFilePath())) {
        watcher_.addPath(file.absoluteFilePath());
    }
    if (QFileInfo(folder).isDir() && !watcher_.directories().contains(folder)) {
        watcher_.addPath(folder);
    }
}

void FileFollower::look() {
    if (path_.empty() || reading_ || user_is_asked()) {
        return;
    }
    watch();
    const State state = look_at(path_);
    if (state == shown_) {
        if ((std::exchange(failing_, false) || std::exchange(given_up_, false)) && recovered) {
            recovered();
        }
        given_up_ = false;
        return;
    }
    const bool same = state == tried_;
    if (given_up_ && same) {
        return;
    }
    if (!failing_ || !same || clock_.elapsed() >= next_try_) {
        read_in(state, failing_ && failures_ > 0);
    }
}

void FileFollower::read_now() {
    if (!path_.empty() && !reading_) {
        read_in(look_at(path_), true);
    }
}

void FileFollower::read_in(const State& state, bool lasting) {
    constexpr qint64 soonest = 400;
    constexpr qint64 usual = 1000;
    constexpr qint64 rest = 4;  // so many times as long as a try takes, nothing is tried
    reading_ = true;
    const qint64 start = clock_.elapsed();
    const Outcome outcome = read ? read(lasting) : Outcome::failed;
    reading_ = false;
    given_up_ = outcome == Outcome::given_up;
    failing_ = outcome == Outcome::failed;
    if (outcome == Outcome::read) {
        shown_ = state;
        failures_ = 0;
        return;
    }
    tried_ = state;
    ++failures_;
    const qint64 pause = std::max(failures_ == 1 ? soonest : usual, rest * (clock_.elapsed() - start));
    next_try_ = clock_.elapsed() + pause;
}

}  // namespace gullymark::shell
