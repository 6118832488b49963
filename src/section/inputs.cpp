#include "section/inputs.h"

#include <algorithm>
#include <array>

#include "section/measures.h"

namespace gullymark::section {
namespace {

using engine::Column;

/// Kinds of inlets as bits: those on a grade, and the same in a sump above them.
enum Kinds : unsigned {
    curb = 1U << static_cast<unsigned>(Inlet::curb),
    grate = 1U << static_cast<unsigned>(Inlet::grate),
    combination = 1U << static_cast<unsigned>(Inlet::combination),
    slotted = 1U << static_cast<unsigned>(Inlet::slotted),
    ditch = 1U << static_cast<unsigned>(Inlet::ditch),
    on_road = curb | grate | combination | slotted,
    on_grade = on_road | ditch,
};

constexpr unsigned sump_bits = 8;

constexpr unsigned sump(unsigned kinds) {
    return kinds << sump_bits;
}

constexpr unsigned both(unsigned kinds) {
    return kinds | sump(kinds);
}

struct Input {
    Column column;
    unsigned kinds;
};

constexpr auto inputs = std::to_array<Input>({
    {Column::TOTAL_DISCHARGE, both(on_grade)},
    {Column::DISCHARGE1, sump(on_grade)},
    {Column::DISCHARGE2, sump(on_grade)},
    {Column::CARRYOVER1, sump(on_grade)},
    {Column::CARRYOVER2, sump(on_grade)},
    {Column::ALLOWABLE_SPREAD, both(on_road)},
    {Column::LONGSLOPE, on_grade | sump(on_grade)},
    {Column::MANNINGS, on_grade | sump(on_road)},
    {Column::GUTWIDTH, on_grade | sump(on_road)},
    {Column::PAVXSLOPE, both(on_road)},
    {Column::GUTXSLOPE, both(on_road)},
    {Column::INLETXSLOPE, both(on_road)},
    {Column::LOCDEPWIDTH, both(on_road)},
    {Column::INLETLENGTH, both(on_grade)},
    {Column::GRATEPERCLOG, on_road | sump(on_grade)},
    {Column::HEIGHTOFCURB, sump(curb | combination)},
    {Column::THROATYPE, sump(curb | combination)},
    {Column::THROATANGLE, sump(curb | combination)},
    {Column::SLOTWIDTH, sump(slotted)},
    {Column::GRATEWIDTH, both(grate | combination | ditch)},
    {Column::GRATETYPE, grate | combination | ditch},
    {Column::OPENLEN_GRATE, combination},
    {Column::GRATEAREA, sump(grate | combination | ditch)},
    {Column::GRATEPERI, sump(grate | combination | ditch)},
    {Column::LSCOPERATIO, ditch},
    {Column::RSCOPERATIO, ditch},
    {Column::INLET_SUBTYPE, both(ditch)},
});

}  // namespace

bool is_input(Column column, const engine::InletRecord& record) {
    if (column == Column::INLET_TYPE || column == Column::INLET_LOCATION) {
        return true;
    }
    const unsigned grade = 1U << static_cast<unsigned>(inlet_of(record));
    const unsigned kind = in_sump(record) ? sump(grade) : grade;
    return std::ranges::any_of(
        inputs, [&](const Input& input) { return input.column == column && (input.kinds & kind) != 0; });
}

}  // namespace gullymark::section
