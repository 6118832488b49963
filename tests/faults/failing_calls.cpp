#include <algorithm>
#include <cerrno>
#include <map>

#include "faults/rehearsal.h"
#include "faults/trials.h"
#include "faults/worker.h"

namespace gullymark::faults {
namespace {

/// The calls that are made to fail: those of one kind on one sort of file.
struct Target {
    std::string name;
    CallKind kind;
    bool (*is_meant)(const Site& site, const std::string& path);
};

bool is_project(const Site& site, const std::string& path) {
    return path == site.file();
}
bool is_journal(const Site& site, const std::string& path) {
    return path == site.journal();
}
bool is_folder(const Site& site, const std::string& path) {
    return path == site.path("work");
}
bool is_other(const Site& site, const std::string& path) {
    return !is_project(site, path) && !is_journal(site, path) && !is_folder(site, path);
}

const std::vector<Target> targets{
    {"of the project", CallKind::sync, is_project},   {"of the journal", CallKind::sync, is_journal},
    {"of the folder", CallKind::sync, is_folder},     {"of a copy", CallKind::sync, is_other},
    {"of the project", CallKind::read, is_project},   {"of the journal", CallKind::read, is_journal},
    {"of a template", CallKind::read, is_other},      {"of a copy", CallKind::rename, is_other},
    {"of the project", CallKind::rename, is_project}, {"of the journal", CallKind::remove, is_journal},
    {"of a copy", CallKind::remove, is_other},
};

const std::map<CallKind, std::vector<int>> reasons{
    {CallKind::sync, {EIO, ENOSPC, EDQUOT}},
    {CallKind::read, {EIO}},
    {CallKind::rename, {EIO, EACCES, EBUSY, ENOSPC, EXDEV}},
    {CallKind::remove, {EIO, EACCES, EPERM, EBUSY}},
};

/// One call fails, or all from it on, or it and some of those after it.
enum class Extent { one, all_after, some_after };

struct Fault {
    const Target& target;
    int first;
    Extent extent;
    int reason;
    int calls = 0;

    Fate fate(const Site& site, const SystemCall& call, std::mt19937& random) {
        if (call.kind != target.kind || !target.is_meant(site, call.path)) {
            return {};
        }
        const int at = calls++;
        const bool fails =
            at == first || (at > first && (extent == Extent::all_after ||
                                           (extent == Extent::some_after && random() % 2 == 0)));
        return {.error = fails ? reason : 0};
    }
};

const char* name_of(CallKind kind) {
    switch (kind) {
        case CallKind::sync:
            return "fsync fails";
        case CallKind::read:
            return "read fails";
        case CallKind::rename:
            return "rename fails";
        default:
            return "unlink fails";
    }
}

int count_calls(const Site& site, const Rehearsal& rehearsal, const Target& target) {
    return static_cast<int>(std::ranges::count_if(rehearsal.calls, [&](const CallMade& call) {
        return call.kind == target.kind && target.is_meant(site, call.path);
    }));
}

/// What may be found after a fault in the deed, whatever was told of it.
std::string complaint_after(const Site& site, const std::vector<State>& states, bool may_leave_files) {
    const State found = state_of(site);
    if (std::ranges::find(states, found) == states.end()) {
        return "what is found is neither old nor new";
    }
    if (!may_leave_files) {
        for (const auto& entry : std::filesystem::directory_iterator(site.path("work"))) {
            const std::string path = entry.path();
            if (path != site.file() && path != site.journal() && path != site.report()) {
                return "left beside it: " + path;
            }
        }
    }
    return complaint_about_opening(site, found, states.back());
}

std::string try_fault(const Site& site, Prospect& prospect, Fault& fault, std::mt19937& random) {
    const auto& states = prospect.rehearsal().states;
    prepare(site, prospect.deed);
    {
        Designer designer(site.program());
        if (!prospect.deed.from_the_start) {
            designer.open(site.file());
        }
        {
            const Watching watching(site.path(""),
                                    [&](const SystemCall& call) { return fault.fate(site, call, random); });
            for (int time = 0; time < prospect.times; ++time) {
                prospect.deed.act(designer, site, prospect.number);
            }
        }
        if (auto complaint = complaint_about_screen(states); !complaint.empty()) {
            return complaint + designer.what_was_told();
        }
    }
    return complaint_after(site, states, fault.target.kind == CallKind::remove);
}

}  // namespace

Outcome fail_calls_of(const Site& site, CallKind kind, int times, int first_seed) {
    Outcome outcome{.name = name_of(kind)};
    const auto deeds = deeds_of_all_kinds(site);
    auto prospects = prospects_of(site, deeds, {0, 5}, {1, 2});
    try_apart(site, times, outcome, [&](int trial, Outcome& told) {
        std::mt19937 random(static_cast<unsigned>(first_seed + trial));
        const Target* target = nullptr;
        Prospect* prospect = nullptr;
        int calls = 0;
        while (calls == 0) {
            target = &targets[static_cast<std::size_t>(pick(random, targets.size()))];
            prospect = &prospects[static_cast<std::size_t>(pick(random, prospects.size()))];
            calls = target->kind == kind ? count_calls(site, prospect->rehearsal(), *target) : 0;
        }
        const auto& errors = reasons.at(kind);
        Fault fault{.target = *target,
                    .first = pick(random, static_cast<std::size_t>(calls)),
                    .extent = static_cast<Extent>(pick(random, 3)),
                    .reason = errors[static_cast<std::size_t>(pick(random, errors.size()))]};
        told.count("trials");
        told.count(target->name);
        const auto complaint = try_fault(site, *prospect, fault, random);
        if (!complaint.empty()) {
            told.fail("seed " + std::to_string(first_seed + trial) + ", " + prospect->deed.name + " " +
                      std::to_string(prospect->number) + " done " + std::to_string(prospect->times) +
                      " times, call " + std::to_string(fault.first + 1) + " of " + std::to_string(calls) +
                      " " + target->name + (fault.extent == Extent::one ? "" : " and more") + ": " +
                      complaint);
        }
    });
    return outcome;
}

}  // namespace gullymark::faults
