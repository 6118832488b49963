#include <algorithm>
#include <cerrno>
#include <optional>

#include "faults/rehearsal.h"
#include "faults/trials.h"
#include "faults/worker.h"

namespace gullymark::faults {
namespace {

bool changes_files(CallKind kind) {
    return kind == CallKind::make || kind == CallKind::write || kind == CallKind::cut ||
           kind == CallKind::rename || kind == CallKind::remove;
}

/// What becomes of a call that changes a file; `is_first` of those that fail.
Fate fate_of(const SystemCall& call, CallFailure failure, bool is_first) {
    if (failure == CallFailure::broken) {
        return {.error = EIO};
    }
    // Room that is given back, and a name that is taken over, are never refused on a full disk.
    if (call.kind != CallKind::write && call.kind != CallKind::make) {
        return {};
    }
    return {.error = ENOSPC, .written = is_first ? call.bytes.size() / 2 : 0};
}

void act_on_failing_disk(const Site& site, const Deed& deed, CallFailure failure, int first) {
    prepare(site, deed);
    std::optional<Watching> watching;
    Designer designer(site.program());  // ends while the disk still fails
    if (!deed.from_the_start) {
        designer.open(site.file());
    }
    int calls = 0;
    watching.emplace(site.path(""), [&](const SystemCall& call) {
        if (!changes_files(call.kind)) {
            return Fate{};
        }
        const int at = calls++;
        return at < first ? Fate{} : fate_of(call, failure, at == first);
    });
    deed.act(designer, site, 0);
}

void judge_site(const Site& site, const Rehearsal& rehearsal, Outcome& outcome, const std::string& round) {
    const State state = state_of(site);
    const auto found = std::ranges::find(rehearsal.states, state);
    if (found == rehearsal.states.end()) {
        outcome.fail(round + "what is found is neither old nor new");
        return;
    }
    outcome.count(found == rehearsal.states.begin()     ? "stored nothing"
                  : found + 1 == rehearsal.states.end() ? "stored all"
                                                        : "stored some statements");
    if (const auto complaint = complaint_about_opening(site, state, rehearsal.states.back());
        !complaint.empty()) {
        outcome.fail(round + complaint);
    }
}

const char* name_of(CallFailure failure) {
    switch (failure) {
        case CallFailure::full:
            return "disk full at each call, ";
        case CallFailure::broken:
            return "disk broken at each call, ";
        default:
            return "killed at each call, ";
    }
}

}  // namespace

Outcome fail_each_call(const Site& site, Prospect& prospect, CallFailure failure) {
    Outcome outcome{.name = name_of(failure) + prospect.deed.name};
    const Rehearsal& rehearsal = prospect.rehearsal();
    const auto calls =
        std::ranges::count_if(rehearsal.calls, [](const CallMade& call) { return changes_files(call.kind); });
    const auto round = [](int number) { return "call " + std::to_string(number + 1) + ": "; };
    const auto fail_call = [&](int call, Outcome& told) {
        told.count("runs");
        act_on_failing_disk(site, prospect.deed, failure, call);
        judge_site(site, rehearsal, told, round(call));
    };
    const auto kill_in_change = [&](int change, Outcome& told) {
        if (rehearsal.disk.kind_of(static_cast<std::size_t>(change)) != CallKind::sync) {
            told.count("runs");
            rehearsal.disk.kill_writer(static_cast<std::size_t>(change));
            judge_site(site, rehearsal, told, round(change));
        }
    };
    if (failure == CallFailure::killed) {
        try_apart(site, static_cast<int>(rehearsal.disk.changes()), outcome, kill_in_change);
    } else {
        try_apart(site, static_cast<int>(calls), outcome, fail_call);
    }
    return outcome;
}

}  // namespace gullymark::faults
