#include <algorithm>
#include <filesystem>
#include <thread>

#include "faults/moments.h"
#include "faults/trials.h"

namespace gullymark::faults {
namespace {

namespace fs = std::filesystem;
using testing_support::ChildProcess;
using testing_support::SharedNumber;

std::string work_folder(const Site& site) {
    return site.path("work");
}
std::string other_project(const Site& site) {
    return site.path("program/GullymarkAL10.rdb");
}

void remove_file(const Site& site) {
    fs::remove(site.file());
}
std::string seen_again(const Site& site, const Course& /*course*/) {
    return site.names().empty() ? "" : "there is " + site.names() + " again";
}

/// A journal may come into being while the folder is emptied.
void remove_folder(const Site& site) {
    std::error_code error;
    while (fs::exists(work_folder(site))) {
        fs::remove_all(work_folder(site), error);
    }
}
std::string folder_seen_again(const Site& site, const Course& /*course*/) {
    return fs::exists(work_folder(site)) ? "the folder is there again" : "";
}

void replace_file(const Site& site) {
    fs::copy_file(other_project(site), site.path("other.gmk"));
    fs::rename(site.path("other.gmk"), site.file());
}
std::string written_into(const Site& site, const Course& /*course*/) {
    return bytes_of(site.file()) == bytes_of(other_project(site)) && site.names() == "road.gmk"
               ? ""
               : "something was written into the other file or left beside it";
}

void forbid_writing(const Site& site) {
    fs::permissions(site.file(), fs::perms(0444));
    fs::permissions(work_folder(site), fs::perms(0555));
}
void allow_writing(const Site& site) {
    fs::permissions(work_folder(site), fs::perms(0777));
    fs::permissions(site.file(), fs::perms(0666));
}
std::string half_stored(const Site& site, const Course& course) {
    allow_writing(site);
    if (auto complaint = complaint_about(site, site.file()); !complaint.empty()) {
        return complaint;
    }
    const auto content = content_of(site.file());
    return std::ranges::count(course.states, content) == 0 ? "a row is neither old nor new" : "";
}

void begin_writable(const Site& site, const Deed& deed) {
    site.begin_anew(deed.old_file);
    fs::permissions(site.path(""), fs::perms(0755));
    allow_writing(site);
}

}  // namespace

std::vector<Taking> takings() {
    return {{"file removed", remove_file, seen_again},
            {"folder removed", remove_folder, folder_seen_again},
            {"file replaced", replace_file, written_into},
            {"file and folder made read-only", forbid_writing, half_stored}};
}

Outcome take_away(const Site& site, const Deed& deed, const Taking& taking, int times) {
    Outcome outcome{.name = taking.name + " during " + deed.name};
    const Course course = run_undisturbed(site, deed, times_each(deed));
    const SharedNumber done;
    const auto all = [&] {
        if (!testing_support::become_unprivileged()) {
            throw std::runtime_error("root cannot become a user");
        }
        do_all(site, deed, *done);
    };
    const auto duration = time_of([&] { begin_writable(site, deed); }, all);
    std::mt19937 random(20100503);
    for (int round = 0; round < times; ++round) {
        begin_writable(site, deed);
        *done = -1;
        const auto name = "round " + std::to_string(round) + ": ";
        outcome.count("runs");
        const bool ended = disturb_within(duration, random, all, [&](const ChildProcess& /*child*/) {
            while (*done < 0) {
                std::this_thread::yield();
            }
            outcome.count("in the middle", *done < times_each(deed) ? 1 : 0);
            taking.take(site);
        });
        if (!ended) {
            outcome.fail(name + "the program crashes");
        }
        if (const auto complaint = taking.complaint(site, course); !complaint.empty()) {
            outcome.fail(name + complaint);
        }
    }
    return outcome;
}

}  // namespace gullymark::faults
