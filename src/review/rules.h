#pragma once

#include <vector>

#include "review/finding.h"

namespace gullymark::review {

/// A rule by its stable name.
struct Rule {
    const char* name;
    Severity severity;
    const char* finds;  // one sentence on what it finds
};

/// Every rule, worst first, for the documents.
std::vector<Rule> all_rules();

/// A rule stands here once with its severity; who finds something names it.
namespace rules {

// clang-format off
inline constexpr Rule result_differs{"result-differs", Severity::wrong, "A stored result does not follow from the stored inputs."};
inline constexpr Rule not_solved{"not-solved", Severity::wrong, "An inlet has no results, or Solve gives none for its inputs."};
inline constexpr Rule carryover_differs{"carryover-differs", Severity::wrong, "A carryover is not the bypass of the previous inlet."};
inline constexpr Rule total_differs{"total-differs", Severity::wrong, "The flow that an inlet must take is not the sum of its shares."};
inline constexpr Rule discharge_differs{"discharge-differs", Severity::wrong, "A discharge that is not typed is not intensity x area x coefficient."};
inline constexpr Rule previous_missing{"previous-missing", Severity::wrong, "A previous inlet does not exist in the project."};
inline constexpr Rule previous_in_loop{"previous-in-loop", Severity::wrong, "Inlets feed each other in a loop."};
inline constexpr Rule previous_named_twice{"previous-named-twice", Severity::wrong, "An inlet is the previous inlet of more than one side."};
inline constexpr Rule bypass_untaken{"bypass-untaken", Severity::wrong, "No inlet takes the bypass of an inlet, and it is above the limit."};
inline constexpr Rule flow_vanishes{"flow-vanishes", Severity::wrong, "Flow comes to an inlet that stores neither intercepted flow nor bypass."};
inline constexpr Rule type_unknown{"type-unknown", Severity::wrong, "The type of an inlet is none of the list."};
inline constexpr Rule location_unknown{"location-unknown", Severity::wrong, "The location of an inlet is none of the list."};
inline constexpr Rule number_unreadable{"number-unreadable", Severity::wrong, "A text that is computed with is no number, or blank."};
inline constexpr Rule number_not_unique{"number-not-unique", Severity::wrong, "Several inlets have one number."};
inline constexpr Rule balance_open{"balance-open", Severity::wrong, "Runoff in is not intercepted flow and bypass out, beyond what rounding explains."};
inline constexpr Rule spread_beyond{"spread-beyond", Severity::beyond, "A spread is greater than the allowable spread."};
inline constexpr Rule spread_at_ceiling{"spread-at-ceiling", Severity::beyond, "A spread is the greatest that is searched: the true one may be greater."};
inline constexpr Rule depth_above_curb{"depth-above-curb", Severity::beyond, "Water stands higher than the curb."};
inline constexpr Rule sump_without_flank{"sump-without-flank", Severity::beyond, "A sump has no previous inlet on a side: a question."};
inline constexpr Rule solve_tells{"solve-tells", Severity::doubtful, "Solve gives results and shows a box."};
inline constexpr Rule bypass_negative{"bypass-negative", Severity::doubtful, "A bypass is negative."};
inline constexpr Rule intercepts_more{"intercepts-more", Severity::doubtful, "An inlet intercepts more than comes to it."};
inline constexpr Rule sump_unclogged{"sump-unclogged", Severity::doubtful, "Nothing is clogged in a sump."};
inline constexpr Rule clogging_idle{"clogging-idle", Severity::doubtful, "The results are the same with nothing clogged."};
inline constexpr Rule offset_side{"offset-side", Severity::doubtful, "The sign of an offset belongs to the other side."};
inline constexpr Rule top_not_falling{"top-not-falling", Severity::doubtful, "An inlet does not stand lower than its previous inlet."};
inline constexpr Rule slot_falls{"slot-falls", Severity::doubtful, "The spread at a slot in a sump falls as the flow grows."};
inline constexpr Rule water_without_spread{"water-without-spread", Severity::doubtful, "Water stands at a combination in a sump, and its spread is 0."};
inline constexpr Rule slot_falls_clogged{"slot-falls-clogged", Severity::doubtful, "The spread at a slot in a sump falls as more of it is clogged."};
inline constexpr Rule gutter_drop_omitted{"gutter-drop-omitted", Severity::doubtful, "The depth at the curb of sumps leaves out the drop of the gutter; told once."};
inline constexpr Rule text_without_effect{"text-without-effect", Severity::doubtful, "Columns that mean nothing to the kind of an inlet hold texts; told once."};
inline constexpr Rule flow_without_effect{"flow-without-effect", Severity::doubtful, "An inlet on a grade holds flow or a previous inlet of a right side, which does not count."};
inline constexpr Rule direction_against_stations{"direction-against-stations", Severity::doubtful, "The previous inlet does not stand where the flow direction says that the flow comes from."};
inline constexpr Rule bypass_turns_back{"bypass-turns-back", Severity::doubtful, "By the stations the bypass turns back at an inlet on a grade."};
inline constexpr Rule sump_fed_from_one_side{"sump-fed-from-one-side", Severity::doubtful, "Both previous inlets of a sump stand on one side of it."};
inline constexpr Rule length_between_rows{"length-between-rows", Severity::doubtful, "A grate intercepts less than a shorter and a longer one: its length lies between the rows of its rating."};
inline constexpr Rule clogging_between_rows{"clogging-between-rows", Severity::doubtful, "The rating of an inlet has no row for its clogged share."};
inline constexpr Rule rating_falls{"rating-falls", Severity::doubtful, "The depth at a rated inlet falls as the flow grows."};
inline constexpr Rule depth_negative{"depth-negative", Severity::doubtful, "A depth is negative."};
// clang-format on

}  // namespace rules
}  // namespace gullymark::review
