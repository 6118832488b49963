#include <algorithm>

#include "faults/moments.h"
#include "faults/trials.h"
#include "platform/files.h"

namespace gullymark::faults {
namespace {

using testing_support::ChildProcess;
using testing_support::SharedNumber;

/// Runs `action` and kills it after a random part of `duration`; true when that was before its end.
bool kill_within(std::chrono::microseconds duration, std::mt19937& random,
                 const std::function<void()>& action) {
    return !disturb_within(duration, random, action, [](const ChildProcess& child) { child.kill(); });
}

void judge(const Site& site, const Course& course, int done, Outcome& outcome, const std::string& round) {
    if (const auto complaint = complaint_about(site, site.file()); !complaint.empty()) {
        outcome.fail(round + complaint);
        return;
    }
    const auto found = std::ranges::find(course.states, content_of(site.file()));
    if (found == course.states.end()) {
        outcome.fail(round + "a row is neither old nor new");
        return;
    }
    const auto at = static_cast<std::size_t>(found - course.states.begin());
    const auto least = done < 0 ? 0 : course.after_deed.at(static_cast<std::size_t>(done));
    const auto most = course.after_deed.at(
        std::min<std::size_t>(static_cast<std::size_t>(done + 1), course.after_deed.size() - 1));
    if (at < least) {
        outcome.fail(round + "a deed that had come back is undone");
    }
    if (at > most) {
        outcome.fail(round + "a deed that had not begun is done");
    }
}

/// What the file of a killed create is: "" when it is nothing that may be.
std::string kind_after_create(const Site& site, const std::string& old_content, const std::string& fresh) {
    if (!platform::file_exists(site.file())) {
        return "absent";
    }
    const auto content = bytes_of(site.file());
    if (content == fresh) {
        return "fresh";
    }
    if (!old_content.empty() && content == old_content) {
        return "old";
    }
    std::string told;
    const End end = run_apart([&] {
        Designer designer(site.program());
        designer.open(site.file());
        if (designer.boxes.empty() || designer.boxes[0].kind != platform::BoxKind::plain) {
            throw std::runtime_error("it was taken for a project");
        }
    });
    return end == End::well ? "refused" : "";
}

}  // namespace

Outcome kill_during(const Site& site, const Deed& deed, int times) {
    Outcome outcome{.name = "kill -9 during " + deed.name};
    const Course course = run_undisturbed(site, deed, times_each(deed));
    const SharedNumber done;
    const auto all = [&] { do_all(site, deed, *done); };
    const auto duration = time_of([&] { site.begin_anew(deed.old_file); }, all);
    std::mt19937 random(20100501);
    for (int round = 0; round < times; ++round) {
        site.begin_anew(deed.old_file);
        // What judges a file opens it, which is the whole of a deed from the start: one not begun may be done by then.
        *done = deed.from_the_start ? 0 : -1;
        outcome.count("runs");
        outcome.count("killed", kill_within(duration, random, all) ? 1 : 0);
        outcome.count("journals left to roll back", platform::file_exists(site.journal()) ? 1 : 0);
        judge(site, course, *done, outcome, "round " + std::to_string(round) + ": ");
    }
    return outcome;
}

Outcome kill_while_creating(const Site& site, int times) {
    Outcome outcome{.name = "kill -9 during create"};
    const auto create = [&] {
        Designer designer(site.program());
        designer.create(site.file());
    };
    const std::string old_project = site.path("road.gmk");
    const std::string fresh = bytes_of(site.program() + "/GullymarkAL10.rdb");
    const auto duration = time_of([&] { site.begin_anew(""); }, create);
    std::mt19937 random(20100502);
    for (int round = 0; round < times; ++round) {
        const bool over_old = round % 2 == 1;
        site.begin_anew(over_old ? old_project : "");
        outcome.count("runs");
        outcome.count("killed", kill_within(duration, random, create) ? 1 : 0);
        const auto kind = kind_after_create(site, over_old ? bytes_of(old_project) : "", fresh);
        if (kind.empty() || (over_old && kind != "old" && kind != "fresh")) {
            outcome.fail("round " + std::to_string(round) + ": what is found is " +
                         (kind.empty() ? "no project" : kind) + (over_old ? ", over an old one" : ""));
        } else {
            outcome.count(kind);
        }
        outcome.count("with a file left beside it", site.names().find(' ') == std::string::npos ? 0 : 1);
    }
    return outcome;
}

}  // namespace gullymark::faults
