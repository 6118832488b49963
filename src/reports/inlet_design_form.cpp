#include "reports/inlet_design_form.h"

#include <array>
#include <string>
#include <vector>

#include "engine/inlet_row.h"
#include "engine/words.h"
#include "platform/database.h"
#include "platform/failure.h"
#include "platform/number_text.h"
#include "platform/outside.h"
#include "platform/row_set.h"
#include "reports/cell_steps.h"
#include "reports/report_file.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::reports {
namespace {

namespace words = engine::words;
using enum engine::Column;
using store::ProjectSession;

constexpr int first_row = 15;

constexpr ReportFile form_file = {
    .template_name = "INLETDESIGNFORMAL.xlr",
    .filter = "Inlet Design Form files (*.xls)|*.xls",
    .title = "Enter New File Name for Inlet Design Form",
    .sheet = platform::SheetChoice::active,
    .frozen_rows = first_row - 1,
    .frozen_columns = 2,  // the inlet's number
};

bool in_sump(const engine::InletRecord& inlet) {
    return inlet.text(INLET_LOCATION) == words::sump;
}

void write_offset(const Place& place) {
    place.write(place.text(OFFSET) + " " + place.text(OFFSET_LOCATION));
}

void write_kind(const Place& place) {
    place.write(place.text(INLET_TYPE) + " / " + place.text(INLET_LOCATION));
}

/// A grate inlet takes gutter flow too, but has always been left without the words.
void write_flow(const Place& place) {
    const std::string& type = place.text(INLET_TYPE);
    if (type == words::curb_inlet || type == words::combination_inlet || type == words::slotted_inlet) {
        place.write("Gutter Flow");
    } else if (type == words::ditch_inlet) {
        place.write("Ditch Flow");
    }
}

void add_second_previous_inlet(const Place& place) {
    if (in_sump(place.inlet) && !place.text(PREINLET2).empty()) {
        place.write(platform::cell_text(place.in_column(11)) + "," + place.text(PREINLET2));
    }
}

/// The inlet that takes this one's bypass: the first that names it on its left, or else on its right.
void write_next_inlet(const Place& place) {
    const std::string number = platform::cell_text(place.in_column(1));
    if (store::CheckInletUsage(number, "PREINLET1") || store::CheckInletUsage(number, "PREINLET2")) {
        place.write(store::session.ReferencingInletNumber);
    }
}

void write_gutter_width(const Place& place) {
    place.write(platform::format_text(place.text(GUTWIDTH), "0.00"));
}

/// Gutter width times cross slope, in inches for feet; metric projects get the same factor.
void write_gutter_drop(const Place& place) {
    place.write(platform::cell_number(place.in_column(24)) * platform::cell_number(place.in_column(22)) *
                12.0);
}

/// The larger spread; that at the opening too where one of them is no number, as on grade.
void write_larger_spread(const Place& place) {
    engine::Column larger = OPENSPREAD;
    platform::ignore_failure([&] {
        if (place.number(GUTTERSPREAD) >= place.number(OPENSPREAD)) {
            larger = GUTTERSPREAD;
        }
    });
    place.write(place.text(larger));
}

void write_total_length(const Place& place) {
    place.write(place.number(INLETLENGTH) + place.number(OPENLEN_GRATE));
}

void write_runoff(const Place& place) {
    place.write(place.number(RUNOFF_AREA) * place.number(RUNOFF_COEFF));
}

void add_runoff_of_right_side(const Place& place) {
    if (in_sump(place.inlet)) {
        const double left = platform::cell_number(place.in_column(43));
        place.write(left + place.number(RUNOFF_AREA2) * place.number(RUNOFF_COEFF2));
    }
}

const auto header = std::to_array<CellStep>({
    {{2, 3}, ProjectText{&ProjectSession::projectId}},
    {{3, 42}, ProjectText{&ProjectSession::projectDesigner}},
    {{3, 3}, ProjectText{&ProjectSession::projectName}},
    {{4, 3}, ProjectText{&ProjectSession::projectCounty}},
    {{6, 42}, ProjectText{&ProjectSession::projectUnits}},
});

// The rows of the steps below count from 1 for an inlet's first row.
constexpr auto identity_and_left_side = std::to_array<CellStep>({
    {{1, 1}, TextOf{INLET_NUMBER}},
    {{1, 3}, TextOf{ROADWAY}},
    {{1, 4}, TextOf{STATION}},
    {{1, 5}, Rule{write_offset}},
    {{1, 6}, TextOf{TOP_ELEVATION}},
    {{1, 7}, TextOf{INLET_SUBTYPE}},
    {{1, 8}, Rule{write_kind}},
    {{1, 9}, TextOf{FLOW_DIRECTION}},
    {{1, 10}, Rule{write_flow}},
    {{1, 11}, TextOf{PREINLET1}},
    {{1, 11}, Rule{add_second_previous_inlet}},
    {{1, 12}, Rule{write_next_inlet}},
    {{1, 13}, TextOf{RUNOFF_AREA}},
    {{1, 14}, TextOf{RUNOFF_COEFF}},
    {{1, 16}, NumberOf{INTENSITY}},
    {{1, 15}, TextOf{STORM_FREQUENCY}},
    {{1, 17}, NumberOf{DISCHARGE1}},
    {{1, 18}, NumberOf{CARRYOVER1}},
});

constexpr auto right_side_and_total = std::to_array<CellStep>({
    {{2, 13}, TextOf{RUNOFF_AREA2}},
    {{2, 14}, TextOf{RUNOFF_COEFF2}},
    {{2, 16}, NumberOf{INTENSITY2}},
    {{2, 17}, NumberOf{DISCHARGE2}},
    {{2, 18}, NumberOf{CARRYOVER2}},
    {{3, 17}, Sum{{1, 17}, {2, 17}}},
    {{3, 18}, Sum{{1, 18}, {2, 18}}},
    {{3, 19}, NumberOf{TOTAL_DISCHARGE}},
});

constexpr auto total_on_grade = std::to_array<CellStep>({
    {{1, 19}, NumberOf{TOTAL_DISCHARGE}},
});

constexpr auto data_and_results = std::to_array<CellStep>({
    {{1, 20}, TextOf{LONGSLOPE}},
    {{1, 21}, TextOf{PAVXSLOPE}},
    {{1, 22}, TextOf{GUTXSLOPE}},
    {{1, 23}, TextOf{INLETXSLOPE}},
    {{1, 24}, Rule{write_gutter_width}},
    {{1, 25}, TextOf{GRATEWIDTH}},
    {{1, 26}, Rule{write_gutter_drop}},
    {{1, 27}, TextOf{MANNINGS}},
    {{1, 28}, TextOf{ALLOWABLE_SPREAD}},
    {{1, 29}, Rule{write_larger_spread}},
    {{1, 31}, TextOf{LOCALDEP}},
    {{1, 32}, NumberOf{INLETLENGTH}},
    {{1, 33}, NumberOf{OPENLEN_GRATE}},
    {{1, 34}, Rule{write_total_length}},
    {{1, 30}, YesIfLess{{1, 28}, {1, 29}}},
    {{1, 35}, TextOf{GRATEPERCLOG}},
    {{1, 36}, TextOf{EFFPERI}},
    {{1, 37}, TextOf{GRATEAREA}},
    {{1, 38}, TextOf{CURB_HEIGHT}},
    {{1, 39}, TextOf{INTLEN}},
    {{1, 40}, TextOf{EFFICIENCY}},
    {{1, 41}, TextOf{QINT}},
    {{1, 42}, TextOf{QCARRY}},
    {{1, 43}, Rule{write_runoff}},
    {{1, 43}, Rule{add_runoff_of_right_side}},
    {{1, 44}, TextOf{CURBDEPTH}},
    {{1, 45}, YesIfLess{{1, 38}, {1, 44}}},
});

/// Writes one inlet from `row` on; the number of rows it takes.
int write_inlet(platform::Sheet& sheet, int row, const engine::InletRecord& inlet) {
    const bool sump = in_sump(inlet);
    const int base = row - 1;
    write_cells(sheet, base, identity_and_left_side, inlet);
    if (sump) {
        write_cells(sheet, base, right_side_and_total, inlet);
    } else {
        write_cells(sheet, base, total_on_grade, inlet);
    }
    write_cells(sheet, base, data_and_results, inlet);
    if (sump) {
        sheet.keep_together({row, row + 2});
    }
    return sump ? 3 : 1;
}

void open_inlets(platform::RowSet& rows) {
    rows.open(store::project_store.connection, store::select_inlets);
}

/// The inlets of the file in their order. One that was deleted since the set was opened is passed over. One that cannot be
/// read, for the file is locked, is a failure: a form without it would look complete.
std::vector<engine::InletRecord> read_inlets(platform::RowSet& rows) {
    std::vector<engine::InletRecord> inlets;
    if (!store::project_store.connection.is_open()) {
        return inlets;
    }
    if (!rows.is_open()) {
        open_inlets(rows);
    }
    for (std::size_t index = 0; !rows.at_end(); rows.move_next(), ++index) {
        engine::InletRecord inlet;
        try {
            load_row(rows, inlet);
            inlets.push_back(inlet);
        } catch (const platform::Failure&) {
            if (rows.all_values("INLET_NUMBER").at(index)) {
                throw;
            }
        }
    }
    return inlets;
}

void fill(platform::Sheet& sheet, const std::vector<engine::InletRecord>& inlets) {
    write_cells(sheet, 0, header, {});
    platform::ignore_failure([&] {
        int row = first_row;
        for (const auto& inlet : inlets) {
            row += write_inlet(sheet, row, inlet);
        }
    });
}

}  // namespace

void InletDesignForm(std::size_t inlet_count) {
    if (inlet_count < 1) {
        platform::tell("No Inlets to Display in Inlet Summary Sheet!", platform::BoxKind::information);
        return;
    }
    platform::RowSet rows;
    platform::ignore_failure([&] { open_inlets(rows); });
    const auto target = choose_target(form_file);
    if (!target) {
        return;
    }
    platform::ignore_failure([&] {
        const auto inlets = read_inlets(rows);
        fill_copy_of_template(form_file, *target, [&](platform::Sheet& sheet) { fill(sheet, inlets); });
    });
    platform::ignore_failure([&] { rows.close(); });
}

}  // namespace gullymark::reports
