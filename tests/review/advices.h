#pragma once

#include <array>
#include <string_view>
#include <utility>

namespace gullymark::review {

/// What each rule advises, whole; a rule may have several.
// clang-format off
inline constexpr auto advices = std::to_array<std::pair<std::string_view, std::string_view>>({
    {"result-differs", "Open the inlet, solve and save it."},
    {"not-solved", "Open the inlet, solve and save it."},
    {"not-solved", "Check the flow that comes to the inlet."},
    {"carryover-differs", "Open the inlet, go through its previous inlet, solve and save."},
    {"total-differs", "Open the inlet, leave one of its flow fields, solve and save."},
    {"total-differs", "Open the inlet and type its flow anew."},
    {"discharge-differs", "Open the inlet, go through its runoff or check the override, solve and save."},
    {"previous-missing", "Open the inlet and pick its previous inlet from the list."},
    {"previous-in-loop", "Take the previous inlet away where the road is highest."},
    {"previous-named-twice", "Keep it as previous inlet of one side."},
    {"bypass-untaken", "Name the inlet as previous inlet of the next one, or make sure where the water goes."},
    {"flow-vanishes", "Solve and save the inlet; where Solve gives neither, work out by hand what it takes."},
    {"type-unknown", "Open the inlet and pick its type from the list."},
    {"location-unknown", "Open the inlet and pick its location from the list."},
    {"number-unreadable", "Open the inlet and type the number anew."},
    {"number-not-unique", "Renumber all but one of them."},
    {"balance-open", "Bring the inlets up to date from the highest down; the findings on them tell which."},
    {"spread-beyond", "Take a longer inlet, set one upstream, or make sure that the spread is accepted."},
    {"spread-at-ceiling", "Do not rely on the results; bring less flow to the inlet."},
    {"depth-above-curb", "Bring less flow to the inlet, or check where the water goes behind the curb."},
    {"sump-without-flank", "Make sure where the water goes when the inlet clogs."},
    {"solve-tells", "Follow the worked calculation of the inlet."},
    {"bypass-negative", "Do not hand it on: it takes flow from the next inlet."},
    {"intercepts-more", "Follow the worked calculation of the inlet."},
    {"sump-unclogged", "Solve it with a share clogged."},
    {"clogging-idle", "Take the clogging into account by hand."},
    {"offset-side", "An offset to the left is negative: check which of the two is meant."},
    {"top-not-falling", "Check the elevations, or which inlet comes first."},
    {"slot-falls", "Rely on the greater spread."},
    {"water-without-spread", "Do not rely on the spread; take that of the gutter."},
    {"slot-falls-clogged", "Rely on the greater spread."},
    {"gutter-drop-omitted", "Add what the gutter falls: its width times its slope above that of the pavement."},
    {"text-without-effect", "Check type and location; where they are right, open the inlet and go through its pages, which empties what does not apply."},
    {"flow-without-effect", "Check the location; where it is right, make sure that another inlet takes this flow."},
    {"direction-against-stations", "Check the flow direction, the stations, and which inlet comes first."},
    {"bypass-turns-back", "Check the stations, and which inlet comes first."},
    {"sump-fed-from-one-side", "Check the stations, and the previous inlets of both sides."},
    {"length-between-rows", "Solve it with a length a little shorter."},
    {"clogging-between-rows", "Solve it with a clogged share that the rating has."},
    {"rating-falls", "Rely on the greater depth."},
    {"depth-negative", "Take it as 0: the flow is smaller than what was measured."},
});
// clang-format on

}  // namespace gullymark::review
