#pragma once

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <stdexcept>

namespace gullymark::testing_support {

/// Runs `action` in a process of its own and kills it as it enters its system call of this number, counted from 1: what
/// the calls before it did stands, and nothing of what would have followed. False when it came to its end before; an
/// action that throws is an error.
inline bool kill_at_call(int call, const std::function<void()>& action) {
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        try {
            action();
        } catch (...) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFSTOPPED(status) ||
        ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD) != 0) {
        throw std::runtime_error("the process cannot be watched");
    }
    constexpr int call_seen = SIGTRAP | 0x80;
    int signal = 0;
    for (int stops = 0; stops < 2 * call - 1;) {  // one as a call is entered, one as it is left
        ptrace(PTRACE_SYSCALL, child, nullptr, signal);
        waitpid(child, &status, 0);
        if (!WIFSTOPPED(status)) {
            if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
                throw std::runtime_error("the action failed in its process");
            }
            return false;
        }
        const bool at_call = WSTOPSIG(status) == call_seen;
        stops += at_call ? 1 : 0;
        signal = at_call ? 0 : WSTOPSIG(status);
    }
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return true;
}

}  // namespace gullymark::testing_support
