#include "reports/inlet_report.h"

#include <array>
#include <span>

#include "engine/words.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "reports/cell_steps.h"
#include "reports/report_file.h"
#include "store/project_session.h"

namespace gullymark::reports {
namespace {

namespace words = engine::words;
using enum engine::Column;
using store::ProjectSession;

constexpr ReportFile report_file = {
    .template_name = "INLET_REPORTAL.xlr",
    .filter = "Inlet Report files (*.xls)|*.xls",
    .title = "Enter New File Name for Inlet Report",
    .sheet = platform::SheetChoice::first,
};

// The kind of the inlet, as its cells say it.
constexpr platform::CellPosition type_cell{9, 2};
constexpr platform::CellPosition location_cell{9, 5};

constexpr auto project_and_inlet = std::to_array<CellStep>({
    {{1, 11}, ProjectText{&ProjectSession::projectUnits}},
    {{2, 11}, Today{}},
    {{3, 11}, ProjectText{&ProjectSession::projectDesigner}},
    {{3, 2}, ProjectText{&ProjectSession::projectId}},
    {{3, 4}, ProjectText{&ProjectSession::projectName}},
    {{4, 2}, ProjectText{&ProjectSession::projectCounty}},
    {{4, 7}, ProjectText{&ProjectSession::projectState}},
    {{8, 2}, TextOf{INLET_NUMBER}},
    {{8, 4}, TextOf{ROADWAY}},
    {{8, 10}, TextOf{STATION}},
    {type_cell, TextOf{INLET_TYPE}},
    {location_cell, TextOf{INLET_LOCATION}},
    {{9, 8}, TextOf{FLOW_DIRECTION}},
    {{9, 10}, TextOf{OFFSET}},
    {{10, 2}, TextOf{INLETLENGTH}},
    {{10, 6}, TextOf{CURB_HEIGHT}},
    {{10, 10}, TextOf{OFFSET_LOCATION}},
    {{11, 2}, TextOf{INLET_SUBTYPE}},
    {{11, 6}, TextOf{ALLOWABLE_SPREAD}},
    {{11, 10}, TextOf{TOP_ELEVATION}},
    {{16, 2}, TextOf{STORM_FREQUENCY}},
    {{16, 5}, TextOf{RUNOFF_AREA}},
    {{17, 5}, TextOf{RUNOFF_COEFF}},
    {{18, 5}, Product{{16, 5}, {17, 5}}},
    {{16, 9}, TextOf{DISCHARGE1}},
    {{17, 2}, TextOf{INTENSITY}},
    {{17, 9}, TextOf{CARRYOVER1}},
    {{18, 10}, TextOf{OVERLAND_FLOW}},
});

constexpr auto right_side = std::to_array<CellStep>({
    {{15, 5}, Literal{"LEFT"}},
    {{15, 9}, Literal{"LEFT"}},
    {{15, 6}, Literal{"RIGHT"}},
    {{15, 10}, Literal{"RIGHT"}},
    {{16, 6}, TextOf{RUNOFF_AREA2}},
    {{17, 6}, TextOf{RUNOFF_COEFF2}},
    {{18, 6}, Product{{16, 6}, {17, 6}}},
    {{16, 10}, TextOf{DISCHARGE2}},
    {{17, 10}, TextOf{CARRYOVER2}},
});

// The total area adds what stands on the right, so it comes behind the right side.
constexpr auto totals_and_common_data = std::to_array<CellStep>({
    {{19, 6}, Sum{{16, 5}, {16, 6}}},
    {{19, 10}, TextOf{TOTAL_DISCHARGE}},
    {{23, 6}, TextOf{LONGSLOPE}},
    {{25, 6}, TextOf{GUTWIDTH}},
    {{30, 10}, TextOf{GRATEPERCLOG}},
});

constexpr auto road_data = std::to_array<CellStep>({
    {{23, 10}, TextOf{INLETXSLOPE}},
    {{24, 6}, TextOf{PAVXSLOPE}},
    {{25, 10}, TextOf{MANNINGS}},
    {{24, 10}, TextOf{LOCALDEP}},
    {{26, 6}, TextOf{GUTXSLOPE}},
});

constexpr auto ditch_on_grade_data = std::to_array<CellStep>({
    {{26, 10}, TextOf{INLETLENGTH}},
    {{27, 10}, TextOf{GRATEWIDTH}},
    {{25, 10}, TextOf{MANNINGS}},
    {{26, 6}, TextOf{RSCOPERATIO}},
    {{27, 6}, TextOf{LSCOPERATIO}},
    {{28, 6}, TextOf{GRATETYPE}},
});

constexpr auto ditch_in_sump_data = std::to_array<CellStep>({
    {{26, 10}, TextOf{INLETLENGTH}},
    {{27, 10}, TextOf{GRATEWIDTH}},
    {{28, 10}, TextOf{GRATEPERI}},
    {{29, 10}, TextOf{GRATEAREA}},
});

constexpr auto grate_data = std::to_array<CellStep>({
    {{26, 10}, TextOf{INLETLENGTH}},
    {{27, 10}, TextOf{GRATEWIDTH}},
});

constexpr auto grate_on_grade_data = std::to_array<CellStep>({
    {{28, 6}, TextOf{GRATETYPE}},
});

constexpr auto combination_on_grade_data = std::to_array<CellStep>({
    {{28, 10}, TextOf{OPENLEN_GRATE}}, {{10, 2}, Sum{{26, 10}, {28, 10}}},  // the total length
});

constexpr auto grate_in_sump_data = std::to_array<CellStep>({
    {{28, 10}, TextOf{GRATEPERI}},
    {{29, 10}, TextOf{GRATEAREA}},
    {{30, 10}, TextOf{GRATEPERCLOG}},
});

constexpr auto curb_option_data = std::to_array<CellStep>({
    {{27, 6}, TextOf{CURBOPTION}},
});

constexpr auto opening_in_sump_data = std::to_array<CellStep>({
    {{27, 6}, TextOf{HEIGHTOFCURB}},
    {{29, 6}, TextOf{THROATYPE}},
    {{30, 6}, TextOf{THROATANGLE}},
});

constexpr auto slot_in_sump_data = std::to_array<CellStep>({
    {{27, 6}, TextOf{SLOTWIDTH}},
    {{30, 10}, TextOf{GRATEPERCLOG}},
});

constexpr auto road_on_grade_results = std::to_array<CellStep>({
    {{33, 6}, TextOf{DEPXSLOPE}},
    {{34, 6}, TextOf{WT}},
    {{34, 10}, TextOf{CURBDEPTH}},
    {{35, 6}, TextOf{COMPXSLOPE}},
    {{35, 10}, TextOf{FLOWRATIO}},
    {{36, 6}, TextOf{FLOWVEL}},
    {{36, 10}, TextOf{OPENSPREAD}},
    {{38, 10}, TextOf{QINT}},
    {{37, 6}, TextOf{EFFICIENCY}},
    {{39, 10}, TextOf{QCARRY}},
    {{42, 6}, TextOf{INTLEN}},
});

constexpr auto combination_on_grade_results = std::to_array<CellStep>({
    {{40, 10}, TextOf{QINTCURB}},
    {{41, 10}, TextOf{QINTGRATE}},
});

constexpr auto ditch_on_grade_results = std::to_array<CellStep>({
    {{33, 6}, TextOf{FLOWAREA}},
    {{34, 6}, TextOf{WETPERI}},
    {{35, 6}, TextOf{HYDRAD}},
    {{34, 10}, TextOf{CURBDEPTH}},
    {{35, 10}, TextOf{FLOWRATIO}},
    {{36, 6}, TextOf{FLOWVEL}},
    {{37, 6}, TextOf{EFFICIENCY}},
    {{38, 10}, TextOf{QINT}},
    {{38, 6}, TextOf{FFLOWEFF}},
    {{39, 6}, TextOf{SFLOWEFF}},
    {{39, 10}, TextOf{QCARRY}},
});

constexpr auto on_grade_results = std::to_array<CellStep>({
    {{42, 10}, TextOf{DSBH}},
});

constexpr auto road_in_sump_results = std::to_array<CellStep>({
    {{33, 10}, TextOf{GUTTERSPREAD}},
    {{34, 10}, TextOf{CURBDEPTH}},
    {{36, 10}, TextOf{OPENSPREAD}},
    {{37, 10}, TextOf{DEPTHATINLET}},
    {{38, 10}, TextOf{QINT}},
    {{40, 6}, TextOf{INLETPERF}},
});

constexpr auto ditch_in_sump_results = std::to_array<CellStep>({
    {{33, 6}, TextOf{RAREA}},
    {{34, 6}, TextOf{RPERI}},
    {{37, 10}, TextOf{DEPTHATINLET}},
    {{38, 10}, TextOf{QINT}},
    {{40, 6}, TextOf{INLETPERF}},
});

/// What the type and location in the sheet say.
struct Kind {
    bool sump = false;
    bool ditch = false;
    bool curb = false;
    bool grate = false;
    bool combination = false;
    bool slotted = false;
};

Kind kind_in(const platform::Sheet& sheet) {
    const std::string type = platform::cell_text(sheet.read(type_cell));
    return {.sump = platform::cell_text(sheet.read(location_cell)) == words::sump,
            .ditch = type == words::ditch_inlet,
            .curb = type == words::curb_inlet,
            .grate = type == words::grate_inlet,
            .combination = type == words::combination_inlet,
            .slotted = type == words::slotted_inlet};
}

struct Group {
    bool (*applies)(const Kind& kind);
    std::span<const CellStep> steps;
};

// Inlet data, then results. Groups are not exclusive.
constexpr auto groups_by_kind = std::to_array<Group>({
    {[](const Kind& kind) { return !kind.ditch; }, road_data},
    {[](const Kind& kind) { return kind.ditch && !kind.sump; }, ditch_on_grade_data},
    {[](const Kind& kind) { return kind.ditch && kind.sump; }, ditch_in_sump_data},
    {[](const Kind& kind) { return kind.grate || kind.combination; }, grate_data},
    {[](const Kind& kind) { return (kind.grate || kind.combination) && !kind.sump; }, grate_on_grade_data},
    {[](const Kind& kind) { return kind.combination && !kind.sump; }, combination_on_grade_data},
    {[](const Kind& kind) { return (kind.grate || kind.combination) && kind.sump; }, grate_in_sump_data},
    {[](const Kind& kind) { return kind.grate && kind.sump; }, curb_option_data},
    {[](const Kind& kind) { return (kind.curb || kind.combination) && kind.sump; }, opening_in_sump_data},
    {[](const Kind& kind) { return kind.slotted && kind.sump; }, slot_in_sump_data},

    {[](const Kind& kind) { return !kind.sump && !kind.ditch; }, road_on_grade_results},
    {[](const Kind& kind) { return !kind.sump && kind.combination; }, combination_on_grade_results},
    {[](const Kind& kind) { return !kind.sump && kind.ditch; }, ditch_on_grade_results},
    {[](const Kind& kind) { return !kind.sump; }, on_grade_results},
    {[](const Kind& kind) { return kind.sump && !kind.ditch; }, road_in_sump_results},
    {[](const Kind& kind) { return kind.sump && kind.ditch; }, ditch_in_sump_results},
});

void fill(platform::Sheet& sheet, const engine::InletRecord& inlet) {
    write_cells(sheet, 0, project_and_inlet, inlet);
    Kind kind;
    platform::ignore_failure([&] { kind = kind_in(sheet); });
    if (kind.sump) {
        write_cells(sheet, 0, right_side, inlet);
    }
    write_cells(sheet, 0, totals_and_common_data, inlet);
    for (const Group& group : groups_by_kind) {
        if (group.applies(kind)) {
            write_cells(sheet, 0, group.steps, inlet);
        }
    }
}

}  // namespace

void inlet_report(std::size_t inlet_count, const engine::InletRecord& current_inlet) {
    if (inlet_count < 1) {
        platform::tell("No Inlets to display on Inlet Report!", platform::BoxKind::information);
        return;
    }
    const auto target = choose_target(report_file);
    if (!target) {
        return;
    }
    platform::ignore_failure([] { store::session.workingDirectory = platform::current_folder(); });
    fill_copy_of_template(report_file, *target, [&](platform::Sheet& sheet) { fill(sheet, current_inlet); });
}

}  // namespace gullymark::reports
