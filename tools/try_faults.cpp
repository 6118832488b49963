// Tries faults on the program, without its windows, and counts what becomes of the project file:
//
//   try_faults kills TIMES      kill -9 at random moments of each of create, save, copy, delete, renumber, details, upgrade
//   try_faults full_disk STEPS  each of them, and the copy of a report's template, with less and less room on the disk:
//                               a limit on the size of files, and as root a small disk of its own as well
//   try_faults calls            each call that changes a file in any of these deeds fails in its turn, and all after it:
//                               the disk is full, is broken, or the program is killed in the middle of the call
//   try_faults fsync TIMES [SEED]   a call of that kind fails once or more at random in one of these deeds, done once or
//   try_faults read TIMES [SEED]    tried again: the synchronisation of project, journal, folder or copy, a read, the
//   try_faults rename TIMES [SEED]  renaming of a copy, the removal of a journal
//   try_faults unlink TIMES [SEED]
//   try_faults locks TIMES [SEED]   another program holds a lock of 0.1 to 2 s from a random statement of a command on
//   try_faults power TIMES [SEED]   power fails at a random moment of a deed, and of what was not synchronised chance
//                               keeps, drops or tears what it wants
//   try_faults taken TIMES      the file removed, replaced or made read-only at random moments of them, its folder removed
//   try_faults damage TIMES [SEED]  random bytes of a file changed, then looked at, edited, copied from and deleted in
//   try_faults many INLETS      a file of many inlets
//   try_faults two EDITS        two programs that edit one file at the same time
//
// Prints a line for each trial, and what fell short of the promise that nothing is lost that had been saved; the exit
// code tells whether something did. The test run does a few of each, `doc/performance.md` has the figures of many.

#include <algorithm>
#include <array>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "faults/trials.h"

namespace {

using namespace gullymark::faults;

bool kill(const Site& site, int times) {
    bool good = true;
    for (const auto& deed : deeds_in_a_project(site)) {
        good = kill_during(site, deed, times).tell() && good;
    }
    return kill_while_creating(site, times).tell() && good;
}

bool fill(const Site& site, int steps) {
    bool good = true;
    const auto deeds = deeds_in_a_project(site);
    for (const auto& deed : deeds) {
        good = deny_growth(site, deed, steps).tell() && good;
    }
    good = deny_growth_while_creating(site, steps).tell() && good;
    good = deny_growth_of_report(site, steps).tell() && good;
    if (!mount_small_disk(site)) {
        std::cout << "no rights to mount a small disk\n";
        return good;
    }
    for (const auto& deed : deeds) {
        good = fill_disk(site, deed, steps).tell() && good;
    }
    good = fill_disk_while_creating(site, steps).tell() && good;
    good = fill_disk_of_report(site, steps).tell() && good;
    unmount_small_disk(site);
    return good;
}

bool fail_each(const Site& site) {
    bool good = true;
    const auto deeds = deeds_of_all_kinds(site);
    auto prospects = prospects_of(site, deeds, {0}, {1});
    for (const auto failure : {CallFailure::full, CallFailure::broken, CallFailure::killed}) {
        for (auto& prospect : prospects) {
            good = fail_each_call(site, prospect, failure).tell() && good;
        }
    }
    return good;
}

template <CallKind kind>
bool fail_some(const Site& site, int times, int seed) {
    return fail_calls_of(site, kind, times, seed).tell();
}

bool take(const Site& site, int times) {
    bool good = true;
    const auto deeds = deeds_in_a_project(site);
    for (const auto& taking : takings()) {
        for (const auto& deed : deeds) {
            // One that is done by opening is over before the file can be taken away.
            good = (deed.from_the_start || take_away(site, deed, taking, times).tell()) && good;
        }
    }
    return good;
}

bool damage(const Site& site, int times, int seed) {
    deeds_in_a_project(site);
    return damage_bytes(site, times, seed).tell();
}

bool work_in_two(const Site& site, int edits) {
    deeds_in_a_project(site);
    return work_two_at_once(site, edits).tell();
}

struct Faults {
    std::string_view name;
    std::string_view counts;
    bool (*tried)(const Site& site, int count, int seed);  // false when something fell short
};

constexpr auto all_faults = std::to_array<Faults>({
    {"kills", "TIMES", [](const Site& site, int count, int) { return kill(site, count); }},
    {"full_disk", "STEPS", [](const Site& site, int count, int) { return fill(site, count); }},
    {"calls", "", [](const Site& site, int, int) { return fail_each(site); }},
    {"fsync", "TIMES [SEED]", fail_some<CallKind::sync>},
    {"read", "TIMES [SEED]", fail_some<CallKind::read>},
    {"rename", "TIMES [SEED]", fail_some<CallKind::rename>},
    {"unlink", "TIMES [SEED]", fail_some<CallKind::remove>},
    {"locks", "TIMES [SEED]",
     [](const Site& site, int count, int seed) { return lock_during_commands(site, count, seed).tell(); }},
    {"power", "TIMES [SEED]",
     [](const Site& site, int count, int seed) { return cut_power(site, count, seed).tell(); }},
    {"taken", "TIMES", [](const Site& site, int count, int) { return take(site, count); }},
    {"damage", "TIMES [SEED]", damage},
    {"many", "INLETS", [](const Site& site, int count, int) { return work_in_many(site, count).tell(); }},
    {"two", "EDITS", [](const Site& site, int count, int) { return work_in_two(site, count); }},
});

void tell_usage() {
    for (const auto& faults : all_faults) {
        std::cerr << "try_faults " << faults.name << ' ' << faults.counts << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view name = argc > 1 ? argv[1] : "";
    const auto faults = std::ranges::find(all_faults, name, &Faults::name);
    if (faults == all_faults.end()) {
        tell_usage();
        return 2;
    }
    try {
        const auto number = [&](int argument) { return argc > argument ? std::stoi(argv[argument]) : 1; };
        const gullymark::testing_support::TempFolder folder;
        return faults->tried(Site(folder.path()), number(2), number(3)) ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
