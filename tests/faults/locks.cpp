#include <sqlite3.h>
#include <sys/prctl.h>

#include <algorithm>
#include <csignal>
#include <iterator>
#include <optional>

#include "faults/rehearsal.h"
#include "faults/statements.h"
#include "faults/trials.h"
#include "faults/worker.h"

namespace gullymark::faults {
namespace {

using testing_support::ChildProcess;
using testing_support::Pipe;

/// Locks the project on demand, in a process of its own: the system's locks are between processes.
class OtherProgram {
  public:
    explicit OtherProgram(const Site& site) : child_([this, path = site.file()] { obey(path); }) {}
    ~OtherProgram() { child_.kill(); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// False when that cannot be now.
    [[nodiscard]] bool begin(const char* statement) const {
        orders_.write(statement);
        return answers_.read() == "done";
    }
    void end() const { static_cast<void>(begin("ROLLBACK")); }

  private:
    void obey(const std::string& path) const {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        sqlite3* file = nullptr;
        for (auto order = orders_.read(); !order.empty(); order = orders_.read()) {
            if (file == nullptr) {
                sqlite3_open_v2(path.c_str(), &file, SQLITE_OPEN_READWRITE, nullptr);
            }
            const bool done = sqlite3_exec(file, order.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
            if (!done || order == "ROLLBACK") {
                sqlite3_close(file);
                file = nullptr;
            }
            answers_.write(done ? "done" : "refused");
        }
    }

    Pipe orders_;
    Pipe answers_;
    ChildProcess child_;
};

/// The lock of one trial. Its time is the time that passes for the designer: what the engine waits, and what he takes to
/// read a box; nobody sleeps for it.
class Lock {
  public:
    Lock(const OtherProgram& other, std::mt19937& random, int statements)
        : other_(other),
          begins_at_(pick(random, static_cast<std::size_t>(statements + 1))),
          microseconds_left_(100'000 + pick(random, 1'900'001)),
          statement_(pick(random, 4) == 0 ? "BEGIN IMMEDIATE" : "BEGIN EXCLUSIVE") {}
    ~Lock() { end(); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    /// The command begins.
    void begin() {
        at_ = 0;
        step();
    }
    /// At each of its statements: the other program takes the lock when its moment has come.
    void step() {
        if (at_ >= 0 && at_++ >= begins_at_ && !held_ && microseconds_left_ > 0) {
            held_ = other_.begin(statement_);
            was_held_ = was_held_ || held_;
        }
    }

    void pass(std::uint64_t microseconds) {
        if (held_) {
            microseconds_left_ -= static_cast<std::int64_t>(microseconds);
            if (microseconds_left_ <= 0) {
                end();
            }
        }
    }

    void end() {
        if (held_) {
            other_.end();
        }
        held_ = false;
        microseconds_left_ = 0;
    }

    [[nodiscard]] bool was_held() const { return was_held_; }

  private:
    const OtherProgram& other_;
    int begins_at_;
    std::int64_t microseconds_left_;
    const char* statement_;
    int at_ = -1;
    bool held_ = false;
    bool was_held_ = false;
};

/// A report shows what it would without the lock, unless a failure was told, or the form that is printed is empty.
std::string complaint_about_sheet(const Designer& designer, const Rehearsal& rehearsal) {
    if (designer.sheet == rehearsal.sheet || designer.sheet.empty() || designer.told_of_failure()) {
        return "";
    }
    return "the report is not complete, and nothing was told";
}

std::string complaint_in_lock(const Site& site, Prospect& command, Lock& lock, std::mt19937& random,
                              Outcome& told) {
    const auto& states = command.rehearsal().states;
    const StatementsSeen seen(nullptr, [&] { lock.step(); });
    Designer designer(site.program());
    if (!command.deed.from_the_start) {
        designer.open(site.file());
    }
    designer.boxes.clear();
    designer.on_box = [&] { lock.pass(static_cast<std::uint64_t>(pick(random, 1'000'000))); };
    const Watching watching(site.path(""), [&](const SystemCall& call) {
        if (call.kind == CallKind::sleep) {
            lock.pass(call.size);
        }
        return Fate{.believed = call.kind == CallKind::sleep};
    });
    lock.begin();
    for (int time = 0; time < command.times; ++time) {
        command.deed.act(designer, site, command.number);
    }
    told.count("told of it", designer.told_of_failure() ? 1 : 0);
    auto complaint = complaint_about_screen(states);  // while it is held, if it still is
    lock.end();
    if (complaint.empty()) {
        complaint = complaint_about_screen(states);
    }
    if (complaint.empty()) {
        complaint = complaint_about_sheet(designer, command.rehearsal());
    }
    return complaint.empty() ? "" : complaint + designer.what_was_told();
}

}  // namespace

Outcome lock_during_commands(const Site& site, int times, int first_seed) {
    Outcome outcome{.name = "locked by another program"};
    auto deeds = deeds_of_all_kinds(site);
    std::ranges::copy(deeds_that_store_nothing(site), std::back_inserter(deeds));
    auto commands = prospects_of(site, deeds, {3}, {1, 2});
    std::optional<OtherProgram> other;
    try_apart(site, times, outcome, [&](int trial, Outcome& told) {
        if (!other) {
            other.emplace(site);
        }
        std::mt19937 random(static_cast<unsigned>(first_seed + trial));
        auto& command = commands[static_cast<std::size_t>(pick(random, commands.size()))];
        const auto& states = command.rehearsal().states;
        prepare(site, command.deed);
        Lock lock(*other, random, command.rehearsal().statements);
        auto complaint = complaint_in_lock(site, command, lock, random, told);
        told.count("trials");
        told.count("locked", lock.was_held() ? 1 : 0);
        const State found = state_of(site);
        if (complaint.empty() && std::ranges::find(states, found) == states.end()) {
            complaint = "what is found is neither old nor new";
        }
        if (complaint.empty()) {
            complaint = complaint_about_opening(site, found, states.back());
        }
        if (!complaint.empty()) {
            told.fail("seed " + std::to_string(first_seed + trial) + ", " + command.deed.name + ": " +
                      complaint);
        }
    });
    return outcome;
}

}  // namespace gullymark::faults
