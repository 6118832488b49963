// Tries faults on the program, without its windows, and counts what becomes of the project file:
//
//   try_faults kills TIMES      kill -9 at random moments of each of create, save, copy, delete, renumber, details, upgrade
//   try_faults full_disk STEPS  each of them, and the copy of a report's template, with less and less room on the disk:
//                               a limit on the size of files, and as root a small disk of its own as well
//   try_faults damage TIMES [SEED]  random bytes of a file changed, then looked at, edited, copied from and deleted in
//   try_faults many INLETS      a file of many inlets
//
// Prints a line for each trial, and what fell short of the promise that nothing is lost that had been saved; the exit
// code tells whether something did. The test run does a few of each, `doc/performance.md` has the figures of many.

#include <exception>
#include <iostream>
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

bool damage(const Site& site, int times, int seed) {
    deeds_in_a_project(site);
    return damage_bytes(site, times, seed).tell();
}

bool try_out(const std::string& word, const Site& site, int count, int seed) {
    if (word == "many") {
        return work_in_many(site, count).tell();
    }
    return word == "kills"       ? kill(site, count)
           : word == "full_disk" ? fill(site, count)
                                 : damage(site, count, seed);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: try_faults kills|full_disk|damage|many COUNT\n";
        return 2;
    }
    try {
        const std::string word = argv[1];
        const int count = std::stoi(argv[2]);
        const gullymark::testing_support::TempFolder folder;
        const Site site(folder.path());
        return try_out(word, site, count, argc > 3 ? std::stoi(argv[3]) : 1) ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
