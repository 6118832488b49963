#include "catalogue/standards.h"

#include <algorithm>

#include "catalogue/standard_rows.h"
#include "engine/words.h"

namespace gullymark::catalogue {
namespace {

using engine::Column;
using namespace engine::words;

constexpr std::optional<Column> only_read;

// clang-format off

constexpr auto curb_columns = std::to_array<TableColumn>({
    {"Inlet Std.",              "",        Column::INLET_SUBTYPE},
    {"% Clogged",               "",        Column::GRATEPERCLOG},
    {"Length",                  "Ft.",     Column::INLETLENGTH},
    {"Effective Length",        "Ft.",     only_read},
});

constexpr auto frmGIG_columns = std::to_array<TableColumn>({
    {"Inlet Std.",              "",        Column::INLET_SUBTYPE},
    {"Length",                  "Ft.",     Column::INLETLENGTH},
    {"Width",                   "Ft.",     Column::GRATEWIDTH},
    {"% Clogged",               "",        Column::GRATEPERCLOG},
    {"Effective Width",         "Ft.",     only_read},
});

constexpr auto frmGIS_columns = std::to_array<TableColumn>({
    {"Inlet Std.",              "",        Column::INLET_SUBTYPE},
    {"Length",                  "Ft.",     Column::INLETLENGTH},
    {"Width",                   "Ft.",     Column::GRATEWIDTH},
    {"% Clogged",               "",        Column::GRATEPERCLOG},
    {"Effective Width",         "Ft.",     only_read},
    {"Grate Opening Area",      "Sq. Ft.", Column::RAREA},
    {"Grate Opening Perimeter", "Ft.",     Column::EFFPERI},
});

constexpr auto frmCCGG_columns = std::to_array<TableColumn>({
    {"Inlet Std.",              "",        Column::INLET_SUBTYPE},
    {"Length",                  "Ft.",     Column::INLETLENGTH},
    {"Grate Width",             "Ft.",     Column::GRATEWIDTH},
    {"% Clogged",               "",        Column::GRATEPERCLOG},
    {"Eff. Grate Width",        "Ft.",     only_read},
});

constexpr auto frmCCGS_columns = std::to_array<TableColumn>({
    {"Inlet Std.",              "",        Column::INLET_SUBTYPE},
    {"Length",                  "Ft.",     Column::INLETLENGTH},
    {"Grate Width",             "Ft.",     Column::GRATEWIDTH},
    {"% Clogged",               "",        Column::GRATEPERCLOG},
    {"Eff. Grate Width",        "Ft.",     only_read},
    {"Grate Opening Area",      "Sq. Ft.", Column::RAREA},
    {"Grate Opening Perimeter", "Ft.",     Column::EFFPERI},
});

// The areas and perimeters of the ditch tables go into the record as they stand: no solver clogs them again.
constexpr auto frmDitchInletCG_columns = std::to_array<TableColumn>({
    {"Inlet Std.",              "",        Column::INLET_SUBTYPE},
    {"Length",                  "Ft.",     Column::INLETLENGTH},
    {"Width",                   "Ft.",     Column::GRATEWIDTH},
    {"Grate Opening Area",      "Sq. Ft.", Column::GRATEAREA},
    {"Grate Opening Perimeter", "Ft.",     Column::GRATEPERI},
});

constexpr auto frmDitchInletSU_columns = std::to_array<TableColumn>({
    {"Inlet Std.",              "",        Column::INLET_SUBTYPE},
    {"Length",                  "Ft.",     Column::INLETLENGTH},
    {"Width",                   "Ft.",     Column::GRATEWIDTH},
    {"% Clogged",               "",        Column::GRATEPERCLOG},
    {"Grate Opening Area",      "Sq. Ft.", Column::GRATEAREA},
    {"Grate Opening Perimeter", "Ft.",     Column::GRATEPERI},
});

// clang-format on

constexpr std::string_view curb_title = "ALDOT CURB INLET TYPES";
constexpr std::string_view grate_title = "ALDOT GRATE INLET TYPES";
constexpr std::string_view combination_title = "ALDOT COMB. CURB & GRATE INLET TYPES";

// The ditch tables have no title of their own: the heading serves.
constexpr auto all_tables = std::to_array<Table>({
    {.name = "frmCIG",
     .location = continuous_grade,
     .type = curb_inlet,
     .title = curb_title,
     .heading = {"ALDOT STANDARD CURB INLETS", "ON GRADE"},
     .select_command = "cigselect",
     .columns = curb_columns,
     .rows = frmCIG_rows},
    {.name = "frmCIS",
     .location = sump,
     .type = curb_inlet,
     .title = curb_title,
     .heading = {"ALDOT STANDARD CURB INLETS", "IN SUMP"},
     .select_command = "cisselect",
     .columns = curb_columns,
     .rows = frmCIS_rows},
    {.name = "frmGIG",
     .location = continuous_grade,
     .type = grate_inlet,
     .title = grate_title,
     .heading = {"ALDOT STANDARD GRATE INLETS", "ON GRADE"},
     .select_command = "gigselect",
     .columns = frmGIG_columns,
     .rows = frmGIG_rows,
     .pads_names = true},
    {.name = "frmGIS",
     .location = sump,
     .type = grate_inlet,
     .title = grate_title,
     .heading = {"ALDOT STANDARD GRATE INLETS", "IN SUMP"},
     .select_command = "gisselect",
     .columns = frmGIS_columns,
     .rows = frmGIS_rows,
     .pads_names = true,
     .tells_curb = true},
    {.name = "frmCCGG",
     .location = continuous_grade,
     .type = combination_inlet,
     .title = combination_title,
     .heading = {"ALDOT STD. COMB. CURB & GRATE INLETS", "ON GRADE"},
     .select_command = "ccggselect",
     .columns = frmCCGG_columns,
     .rows = frmCCGG_rows},
    {.name = "frmCCGS",
     .location = sump,
     .type = combination_inlet,
     .title = combination_title,
     .heading = {"ALDOT STD. COMB. CURB & GRATE INLETS", "IN SUMP"},
     .select_command = "ccgsselect",
     .columns = frmCCGS_columns,
     .rows = frmCCGS_rows},
    {.name = "frmDitchInletCG",
     .location = continuous_grade,
     .type = ditch_inlet,
     .title = "ALDOT STANDARD DITCH INLETS ON GRADE",
     .heading = {"ALDOT STANDARD DITCH INLETS ON GRADE"},
     .select_command = "diselect",
     .columns = frmDitchInletCG_columns,
     .rows = frmDitchInletCG_rows},
    {.name = "frmDitchInletSU",
     .location = sump,
     .type = ditch_inlet,
     .title = "ALDOT STANDARD DITCH INLETS IN SUMP",
     .heading = {"ALDOT STANDARD DITCH INLETS IN SUMP"},
     .select_command = "diselect",
     .columns = frmDitchInletSU_columns,
     .rows = frmDitchInletSU_rows},
});

}  // namespace

std::span<const Table> tables() {
    return all_tables;
}

const Table* table_for(std::string_view location, std::string_view type) {
    const auto* const found = std::find_if(all_tables.begin(), all_tables.end(), [&](const Table& table) {
        return table.location == location && table.type == type;
    });
    return found == all_tables.end() ? nullptr : found;
}

std::string row_text(const Table& table, const Row& row) {
    if (is_separator(row)) {
        return {};
    }
    std::string text;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        text.append(i == 0 ? "" : "\t").append(row.at(i));
    }
    return text;
}

}  // namespace gullymark::catalogue
