// Tries faults on the program, without its windows, and counts what becomes of the project file:
//
//   try_faults kills TIMES      kill -9 at random moments of each of create, save, copy, delete, renumber, details, upgrade
//   try_faults full_disk STEPS  each of them, and the copy of a report's template, with less and less room on the disk:
//                               a limit on the size of files, and as root a small disk of its own as well
//   try_faults calls            each call by which SQLite changes a file fails in its turn, and all after it: the disk is
//                               full, is broken, or the program is killed in the middle of the call
//   try_faults taken TIMES      the file removed, replaced or made read-only at random moments of them, its folder removed
//   try_faults damage TIMES [SEED]  random bytes of a file changed, then looked at, edited, copied from and deleted in
//   try_faults many INLETS      a file of many inlets
//   try_faults two EDITS        two programs that edit one file at the same time
//
// Prints a line for each trial, and what fell short of the promise that nothing is lost that had been saved; the exit
// code tells whether something did. The test run does a few of each, `doc/performance.md` has the figures of many.

#include <exception>
#include <iostream>
#include <optional>
#include <string>

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

bool fail_calls(const Site& site) {
    bool good = true;
    const auto deeds = deeds_in_a_project(site);
    for (const auto failure : {CallFailure::full, CallFailure::broken, CallFailure::killed}) {
        for (const auto& deed : deeds) {
            good = fail_each_call(site, deed, failure).tell() && good;
        }
    }
    return good;
}

bool take(const Site& site, int times) {
    bool good = true;
    auto deeds = deeds_in_a_project(site);
    deeds.pop_back();  // the upgrade, done when the project is open
    for (const auto& taking : takings()) {
        for (const auto& deed : deeds) {
            good = take_away(site, deed, taking, times).tell() && good;
        }
    }
    return good;
}

bool damage(const Site& site, int times, int seed) {
    deeds_in_a_project(site);
    return damage_bytes(site, times, seed).tell();
}

/// False when something fell short; nothing when there are no such faults.
std::optional<bool> try_out(const std::string& faults, const Site& site, int count, int seed) {
    if (faults == "kills") {
        return kill(site, count);
    }
    if (faults == "full_disk") {
        return fill(site, count);
    }
    if (faults == "calls") {
        return fail_calls(site);
    }
    if (faults == "taken") {
        return take(site, count);
    }
    if (faults == "damage") {
        return damage(site, count, seed);
    }
    if (faults == "many") {
        return work_in_many(site, count).tell();
    }
    if (faults == "two") {
        deeds_in_a_project(site);
        return work_two_at_once(site, count).tell();
    }
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const auto number = [&](int argument) { return argc > argument ? std::stoi(argv[argument]) : 1; };
        const gullymark::testing_support::TempFolder folder;
        const Site site(folder.path());
        const auto good = try_out(argc > 1 ? argv[1] : "", site, number(2), number(3));
        if (!good) {
            std::cerr << "usage: try_faults kills TIMES | full_disk STEPS | calls | taken TIMES | damage "
                         "TIMES [SEED] | "
                         "many INLETS\n";
            return 2;
        }
        return *good ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
