#include "platform/office/answers.h"

#include <unistd.h>

#include <thread>
#include <utility>

#include "platform/office_lines.h"

namespace gullymark::office {
namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds look = std::chrono::milliseconds(100);

}  // namespace

Answers::Answers(std::function<void()> when_late) : when_late_(std::move(when_late)) {
    std::thread([this] { watch(); }).detach();
}

void Answers::promise(std::chrono::milliseconds limit) {
    const std::lock_guard lock(mutex_);
    due_ = Clock::now() + limit;
}

bool Answers::give(const std::string& lines) {
    const std::lock_guard lock(mutex_);
    due_ = Clock::time_point::max();
    return write(lines);
}

void Answers::fail(const std::string& description) {
    const std::lock_guard lock(mutex_);
    due_ = Clock::time_point::max();
    write(platform::join_line({"failed", description}));
    silent_ = true;
    close(STDOUT_FILENO);
}

bool Answers::write(const std::string& lines) {
    for (std::size_t written = 0; !silent_ && written < lines.size();) {
        const ssize_t count = ::write(STDOUT_FILENO, lines.data() + written, lines.size() - written);
        if (count < 0) {
            silent_ = true;
        } else {
            written += static_cast<std::size_t>(count);
        }
    }
    return !silent_;
}

void Answers::watch() {
    for (;;) {
        std::this_thread::sleep_for(look);
        bool late = false;
        {
            const std::lock_guard lock(mutex_);
            late = Clock::now() > due_;
        }
        if (late) {
            fail("The spreadsheet program does not answer.");
            when_late_();
        }
    }
}

}  // namespace gullymark::office
