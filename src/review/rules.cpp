#include "review/rules.h"

namespace gullymark::review {

std::vector<Rule> all_rules() {
    using namespace rules;
    return {
        result_differs,
        not_solved,
        carryover_differs,
        total_differs,
        discharge_differs,
        previous_missing,
        previous_in_loop,
        previous_named_twice,
        bypass_untaken,
        flow_vanishes,
        type_unknown,
        location_unknown,
        number_unreadable,
        number_not_unique,
        balance_open,
        spread_beyond,
        spread_at_ceiling,
        depth_above_curb,
        sump_without_flank,
        solve_tells,
        bypass_negative,
        intercepts_more,
        sump_unclogged,
        clogging_idle,
        offset_side,
        top_not_falling,
        slot_falls,
        water_without_spread,
        slot_falls_clogged,
        gutter_drop_omitted,
        text_without_effect,
        flow_without_effect,
        direction_against_stations,
        bypass_turns_back,
        sump_fed_from_one_side,
        length_between_rows,
        clogging_between_rows,
        rating_falls,
        depth_negative,
    };
}

}  // namespace gullymark::review
