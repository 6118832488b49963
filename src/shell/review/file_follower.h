#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace gullymark::shell {

/// Watches a file that another program saves. The system's notices come at once, and a look three times a second sees what
/// comes without one: a file in a folder of the network, one that was put in the place of another.
class FileFollower : public QObject {
  public:
    enum class Outcome : unsigned char { read, failed, given_up };

    explicit FileFollower(QObject* parent = nullptr);

    /// Reads the file anew. Never called while a box, a dialog or a menu is open: it waits. What failed is tried again, soon
    /// at first and then about once a second, less often where a try takes long; `lasting` is true from the second try on.
    /// What the user gave up is left alone until the file changes again.
    std::function<Outcome(bool lasting)> read;
    /// After failures the file is as it was last read.
    std::function<void()> recovered;

    /// The state of a file, to be taken before it is read.
    using State = std::vector<std::int64_t>;
    [[nodiscard]] static State look_at(const std::string& path);

    /// Watches this file from now on, which is shown as it was in `state`.
    void follow(const std::string& path, State state);
    /// Reads now, whether something changed or not.
    void read_now();

  private:
    void look();
    void read_in(const State& state, bool lasting);
    void watch();

    std::string path_;
    State shown_;
    State tried_;  // the last one that could not be read, or was given up
    bool failing_ = false;
    bool given_up_ = false;
    int failures_ = 0;
    qint64 next_try_ = 0;
    bool reading_ = false;
    QElapsedTimer clock_;
    QFileSystemWatcher watcher_;
    QTimer looks_;
    QTimer soon_;
};

}  // namespace gullymark::shell
