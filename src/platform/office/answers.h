#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <string>

/// The answers to the program, each within its time limit, whatever the office does.
namespace gullymark::office {

class Answers {
  public:
    /// When an answer is not given in time, the program is told that it failed and hears no more; then `when_late`
    /// runs, on a thread of its own.
    explicit Answers(std::function<void()> when_late);

    /// An answer is due within this time from now.
    void promise(std::chrono::milliseconds limit);

    /// Gives the answer, one or more lines. False when it comes too late or the program no longer listens.
    [[nodiscard]] bool give(const std::string& lines);

    /// Gives the last answer: it failed.
    void fail(const std::string& description);

  private:
    [[noreturn]] void watch();
    bool write(const std::string& lines);

    std::function<void()> when_late_;
    std::mutex mutex_;
    std::chrono::steady_clock::time_point due_ = std::chrono::steady_clock::time_point::max();
    bool silent_ = false;
};

}  // namespace gullymark::office
