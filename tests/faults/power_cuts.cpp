#include <algorithm>

#include "faults/rehearsal.h"
#include "faults/trials.h"
#include "faults/worker.h"

namespace gullymark::faults {
namespace {

/// The state that is found is one that had been promised, or the next one that was under way.
std::string complaint_after_cut(const Site& site, const Rehearsal& rehearsal, std::size_t changes) {
    const auto least = rehearsal.promised[changes];
    const State found = state_of(site);
    const auto at = std::ranges::find(rehearsal.states, found) - rehearsal.states.begin();
    const auto index = static_cast<std::size_t>(at);
    if (index == rehearsal.states.size()) {
        return "what is found is neither old nor new: " + found.content.substr(0, 200);
    }
    if (index < least) {
        return "what had come back is undone";
    }
    if (index > least + 1) {
        return "more is there than was under way";
    }
    return complaint_about_opening(site, found, rehearsal.states.back());
}

}  // namespace

Outcome cut_power(const Site& site, int times, int first_seed) {
    Outcome outcome{.name = "power cut"};
    const auto deeds = deeds_of_all_kinds(site);
    auto prospects = prospects_of(site, deeds, {0}, {1});
    try_apart(site, times, outcome, [&](int trial, Outcome& told) {
        std::mt19937 random(static_cast<unsigned>(first_seed + trial));
        const auto which = static_cast<std::size_t>(pick(random, deeds.size()));
        const Rehearsal& rehearsal = prospects[which].rehearsal();
        const auto after = static_cast<std::size_t>(pick(random, rehearsal.disk.changes() + 1));
        told.count("trials");
        told.count("during " + deeds[which].name);
        rehearsal.disk.fail_power(after, random);
        told.count("journals left to roll back", std::filesystem::exists(site.journal()) ? 1 : 0);
        if (const auto complaint = complaint_after_cut(site, rehearsal, after); !complaint.empty()) {
            told.fail("seed " + std::to_string(first_seed + trial) + ", " + deeds[which].name + " after " +
                      std::to_string(after) + " of " + std::to_string(rehearsal.disk.changes()) +
                      " changes: " + complaint);
        }
    });
    return outcome;
}

}  // namespace gullymark::faults
