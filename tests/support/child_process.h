#pragma once

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <functional>
#include <stdexcept>
#include <string>

namespace gullymark::testing_support {

/// A process of its own for a part of a test. It never returns from `action` into the test.
class ChildProcess {
  public:
    explicit ChildProcess(const std::function<void()>& action) : id_(fork()) {
        if (id_ == 0) {
            try {
                action();
            } catch (...) {
                _exit(1);
            }
            _exit(0);
        }
        if (id_ < 0) {
            throw std::runtime_error("no child process");
        }
    }
    ~ChildProcess() { wait(); }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Ends it on the spot, as a crash or a power cut would.
    void kill() const { ::kill(id_, SIGKILL); }

    /// Waits for its end; true when it came to it by itself and without an exception.
    bool wait() {
        if (id_ > 0) {
            int status = 0;
            while (waitpid(id_, &status, 0) < 0 && errno == EINTR) {
            }
            id_ = 0;
            ended_well_ = WIFEXITED(status) && WEXITSTATUS(status) == 0;
            signal_ = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
        }
        return ended_well_;
    }

    /// The signal that ended it, after `wait`; 0 when none did.
    [[nodiscard]] int signal() const { return signal_; }

  private:
    pid_t id_;
    int signal_ = 0;
    bool ended_well_ = false;
};

/// A number that this process and its children see, killed or not.
class SharedNumber {
  public:
    SharedNumber()
        : number_(new (mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0)) std::atomic<int>(0)) {}
    ~SharedNumber() { munmap(number_, sizeof(std::atomic<int>)); }
    SharedNumber(const SharedNumber&) = delete;
    SharedNumber& operator=(const SharedNumber&) = delete;

    std::atomic<int>& operator*() const { return *number_; }

  private:
    std::atomic<int>* number_;
};

/// One-way texts between two processes.
class Pipe {
  public:
    Pipe() {
        if (pipe(ends_.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
    }
    ~Pipe() {
        close(ends_[0]);
        close(ends_[1]);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    void write(const std::string& text) const {
        if (::write(ends_[1], text.data(), text.size()) < 0) {
            throw std::runtime_error("nobody reads");
        }
    }
    /// What has been written, after waiting for it.
    [[nodiscard]] std::string read() const {
        std::string text(4096, ' ');
        const auto count = ::read(ends_[0], text.data(), text.size());
        text.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
        return text;
    }

  private:
    std::array<int, 2> ends_{};
};

/// From here on this process is a user whom file permissions hold; root passes over them. False when this machine does
/// not let root become such a user.
inline bool become_unprivileged() {
    constexpr id_t nobody = 65534;
    return geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0);
}

/// What `action` returns when it runs as a user whom file permissions hold; root passes over them. Empty when this
/// machine does not let root become such a user.
inline std::string run_unprivileged(const std::function<std::string()>& action) {
    if (geteuid() != 0) {
        return action();
    }
    const Pipe answer;
    ChildProcess child([&] { answer.write(become_unprivileged() ? "+" + action() : "-"); });
    if (!child.wait()) {
        throw std::runtime_error("the action failed in its process");
    }
    return answer.read().substr(1);
}

}  // namespace gullymark::testing_support
