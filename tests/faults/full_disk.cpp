#include <sched.h>
#include <sys/mount.h>

#include <algorithm>
#include <csignal>

#include "faults/trials.h"
#include "platform/files.h"

namespace gullymark::faults {
namespace {

using testing_support::write_file;

/// Makes the disk fail to a degree: a limit of growth, a number of free pages.
using Scarcity = std::function<void(const Site& site, int degree)>;

constexpr std::uint64_t page = 4096;
constexpr std::uint64_t disk_size = 256 * page;

/// Holds for this process until it ends: no file grows beyond a limit, from no byte at all to more than it has.
Scarcity limit_growth(int degrees) {
    return [degrees](const Site& site, int degree) {
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        const auto most = std::filesystem::file_size(site.path("road.gmk")) + 4 * page;
        const rlimit limit{most * static_cast<rlim_t>(degree) / static_cast<rlim_t>(degrees), RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
}

void leave_free_pages(const Site& site, int degree) {
    const auto space = std::filesystem::space(site.path("work"));
    const auto free = static_cast<std::uint64_t>(degree) * page;
    write_file(site.path("work/filler"), std::string(space.free > free ? space.free - free : 0, 'x'));
}

/// Carries the deed out under scarcity, in a process of its own. What it was told is counted.
void act_in_want(const Site& site, const Scarcity& scarcity, int degree, Outcome& outcome,
                 const std::function<void(Designer&)>& before, const std::function<void(Designer&)>& act) {
    outcome.count("runs");
    const End end = run_apart([&] {
        Designer designer(site.program());
        before(designer);
        scarcity(site, degree);
        act(designer);
    });
    if (end != End::well) {
        outcome.fail("degree " + std::to_string(degree) + ": the program " +
                     (end == End::crashed ? "crashes" : "hangs"));
    }
    std::filesystem::remove(site.path("work/filler"));
}

Outcome act_in_every_want(const Site& site, const Deed& deed, const Scarcity& scarcity, int degrees) {
    Outcome outcome{.name = deed.name};
    const Course course = run_undisturbed(site, deed, 1);
    for (int degree = 0; degree < degrees; ++degree) {
        site.begin_anew(deed.old_file);
        act_in_want(
            site, scarcity, degree, outcome,
            [&](Designer& designer) { deed.from_the_start ? void() : designer.open(site.file()); },
            [&](Designer& designer) { deed.act(designer, site, 0); });
        const auto round = "degree " + std::to_string(degree) + ": ";
        if (const auto complaint = complaint_about(site, site.file()); !complaint.empty()) {
            outcome.fail(round + complaint);
            continue;
        }
        // That check upgraded an old file to the end.
        const auto found = std::ranges::find(course.states, content_of(site.file()));
        if (found == course.states.end()) {
            outcome.fail(round + "a row is neither old nor new");
        } else {
            outcome.count(found == course.states.begin()     ? "stored nothing"
                          : found + 1 == course.states.end() ? "stored all"
                                                             : "stored some statements");
        }
    }
    return outcome;
}

/// A file that is made from a template over an old one is the old one or a whole copy.
Outcome replace_in_every_want(const Site& site, const std::string& name, const std::string& file,
                              const std::string& fresh_path, const Scarcity& scarcity, int degrees,
                              const std::function<void(Designer&)>& before,
                              const std::function<void(Designer&)>& act) {
    Outcome outcome{.name = name};
    const std::string old = bytes_of(site.path("road.gmk"));
    const std::string fresh = bytes_of(fresh_path);
    for (int degree = 0; degree < degrees; ++degree) {
        site.begin_anew("");
        std::filesystem::copy_file(site.path("road.gmk"), file);
        act_in_want(site, scarcity, degree, outcome, before, act);
        const std::string found = bytes_of(file);
        if (found != old && found != fresh) {
            outcome.fail("degree " + std::to_string(degree) + ": the old file is lost, " +
                         std::to_string(found.size()) + " bytes of the new one are there");
        } else {
            outcome.count(found == old ? "kept the old file" : "made the new file");
        }
        outcome.count("with a file left beside it", site.names().find(' ') == std::string::npos ? 0 : 1);
    }
    return outcome;
}

Outcome create_in_every_want(const Site& site, const Scarcity& scarcity, int degrees) {
    return replace_in_every_want(
        site, "create over an old project", site.file(), site.program() + "/GullymarkAL10.rdb", scarcity,
        degrees, [](Designer&) {}, [&](Designer& designer) { designer.create(site.file()); });
}

Outcome report_in_every_want(const Site& site, const Scarcity& scarcity, int degrees) {
    return replace_in_every_want(
        site, "report over an old file", site.report(), site.program() + "/INLET_REPORTAL.xlr", scarcity,
        degrees, [&](Designer& designer) { designer.open(site.path("road.gmk")); },
        [&](Designer& designer) { designer.write_report(site.report()); });
}

Outcome named(Outcome outcome, const std::string& fault) {
    outcome.name = fault + ", " + outcome.name;
    return outcome;
}

}  // namespace

Outcome deny_growth(const Site& site, const Deed& deed, int limits) {
    return named(act_in_every_want(site, deed, limit_growth(limits), limits), "no growth");
}
Outcome deny_growth_while_creating(const Site& site, int limits) {
    return named(create_in_every_want(site, limit_growth(limits), limits), "no growth");
}
Outcome deny_growth_of_report(const Site& site, int limits) {
    return named(report_in_every_want(site, limit_growth(limits), limits), "no growth");
}

Outcome fill_disk(const Site& site, const Deed& deed, int pages) {
    return named(act_in_every_want(site, deed, leave_free_pages, pages), "full disk");
}
Outcome fill_disk_while_creating(const Site& site, int pages) {
    return named(create_in_every_want(site, leave_free_pages, pages), "full disk");
}
Outcome fill_disk_of_report(const Site& site, int pages) {
    return named(report_in_every_want(site, leave_free_pages, pages), "full disk");
}

bool mount_small_disk(const Site& site) {
    const std::string folder = site.path("work");
    return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("small", folder.c_str(), "tmpfs", 0, ("size=" + std::to_string(disk_size)).c_str()) == 0;
}

void unmount_small_disk(const Site& site) {
    umount2(site.path("work").c_str(), MNT_DETACH);
}

}  // namespace gullymark::faults
