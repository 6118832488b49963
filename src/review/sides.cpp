#include "review/sides.h"

#include <array>

#include "review/texts.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

constexpr Side left_of(std::string_view behind) {
    return {behind,
            Column::LDISCHARGE_OVERRIDE,
            Column::RUNOFF_AREA,
            Column::RUNOFF_COEFF,
            Column::INTENSITY,
            Column::DISCHARGE1,
            Column::PREINLET1,
            Column::CARRYOVER1};
}

constexpr std::array in_a_sump{
    left_of(" of the left side"),
    Side{" of the right side", Column::RDISCHARGE_OVERRIDE, Column::RUNOFF_AREA2, Column::RUNOFF_COEFF2,
         Column::INTENSITY2, Column::DISCHARGE2, Column::PREINLET2, Column::CARRYOVER2}};
constexpr std::array on_a_grade{left_of("")};

}  // namespace

std::span<const Side> sides_of(const engine::InletRecord& record) {
    return section::in_sump(record) ? std::span<const Side>(in_a_sump) : std::span<const Side>(on_a_grade);
}

engine::FlowShares shares_of(const engine::InletRecord& record) {
    engine::FlowShares shares{.from_left = number_or_zero(record, Column::DISCHARGE1),
                              .bypass_left = number_or_zero(record, Column::CARRYOVER1),
                              .overland = number_or_zero(record, Column::OVERLAND_FLOW)};
    if (section::in_sump(record)) {
        shares.from_right = number_or_zero(record, Column::DISCHARGE2);
        shares.bypass_right = number_or_zero(record, Column::CARRYOVER2);
    }
    return shares;
}

}  // namespace gullymark::review
