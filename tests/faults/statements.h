#pragma once

#include <functional>

/// The statements of every connection of this process that opens from now on.
namespace gullymark::faults {

/// Tells `ended` of each statement that came back, and `began` of each before it does anything, while it lives; not of
/// those that they send themselves. One at a time.
class StatementsSeen {
  public:
    explicit StatementsSeen(std::function<void()> ended, std::function<void()> began = nullptr);
    ~StatementsSeen();
    StatementsSeen(const StatementsSeen&) = delete;
    StatementsSeen& operator=(const StatementsSeen&) = delete;
};

}  // namespace gullymark::faults
