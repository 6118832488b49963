#include "editor/windows/inlet_list.h"

#include <algorithm>

#include "engine/unit_constants.h"
#include "platform/failure.h"
#include "platform/number_text.h"
#include "platform/outside.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

constexpr std::size_t preinlet1_column = 7;
constexpr std::size_t preinlet2_column = 8;

constexpr const char* list_statement =
    "SELECT INLET_NUMBER AS [INLET_ID],STATION, OFFSET, INLET_TYPE AS [TYPE],INLET_LOCATION AS "
    "[LOCATION],INLET_SUBTYPE AS [INLET STD],INLETLENGTH AS [LENGTH], PREINLET1 AS [PRE-INLET1], "
    "PREINLET2 AS [PRE-INLET2], "
    " TOTAL_DISCHARGE AS [DISCHARGE] FROM INLET ORDER BY INLET_NUMBER";

std::string current_cell() {
    return list_cell(frminletflex.row, 0);
}

std::string trimmed_cell(std::size_t column) {
    return std::string(platform::trim_blanks(list_cell(frminletflex.row, column)));
}

void keep_row() {
    frminletflex.kept_row = static_cast<std::int16_t>(frminletflex.row);
}

void load_inlet_list() {
    frminletflex.loaded = true;
    engine::unit_constants.numberFormat = "0.000";
    ++frminletflex.loads;
    if (!get_flexinlet_records()) {
        return;
    }
    try {
        frminletflex.Adodc1.refresh();
        frminletflex.flexinletRS.requery();
    } catch (const platform::Failure& failure) {
        platform::tell(failure.what());
        return;
    }
    if (frminletflex.Adodc1.record_count() >= 1) {
        frminletflex.row = 1;
        if (frminletflex.kept_row == 0) {
            frminletflex.kept_row = 1;
        }
        frminletflex.ViewInletNumber = current_cell();
    }
    frminletflex.rec_count.text = std::to_string(frminletflex.Adodc1.record_count());
}

}  // namespace

InletList frminletflex;

void show_inlet_list() {
    if (!frminletflex.loaded) {
        load_inlet_list();
    }
    frminletflex.visible = true;
    ++frminletflex.shows;
}

void unload_inlet_list() {
    frminletflex = {.loads = frminletflex.loads, .shows = frminletflex.shows};
}

bool get_flexinlet_records() {
    frminletflex.Adodc1 = {.statement = list_statement};
    frminletflex.flexinletRS = platform::RowSet();
    try {
        frminletflex.flexinletRS.open(store::project_store.connection, store::select_inlets);
        return true;
    } catch (const platform::Failure& failure) {
        platform::tell(failure.what());
        return false;
    }
}

void inletflex_EnterCell(int row) {
    frminletflex.row = row;
    keep_row();
}

void inletflex_Click() {
    if (frminletflex.row == 0) {
        return;
    }
    keep_row();
    frminletflex.ViewInletNumber = current_cell();
}

bool choose_viewed_inlet() {
    if (frminletflex.row == 0) {
        return false;
    }
    keep_row();
    if (frminletflex.Adodc1.record_count() == 0) {
        platform::tell("No inlets to View/Edit!", platform::BoxKind::information);
        return false;
    }
    frminletflex.ViewInletNumber = current_cell();
    frminletflex.ViewPreinlet1 = trimmed_cell(preinlet1_column);
    frminletflex.ViewPreinlet2 = trimmed_cell(preinlet2_column);
    return true;
}

std::string list_cell(int row, std::size_t column) {
    return frminletflex.Adodc1.cell(row, column);
}

void refresh_inlet_list() {
    platform::ignore_failure([] {
        auto& list = frminletflex;
        list.Adodc1.refresh();
        ++list.loads;
        if (list.Adodc1.record_count() == 0) {
            list.rec_count.text = std::to_string(list.Adodc1.record_count());
            return;
        }
        if (!list.flexinletRS.is_open()) {
            list.flexinletRS.open(store::project_store.connection, store::select_inlets);
        }
        // This set was last read at load, so the count can lag behind the rows, deliberately.
        list.rec_count.text = std::to_string(list.flexinletRS.record_count());
        list.row = std::min<int>(list.kept_row, list.Adodc1.record_count());
    });
}

void exit_inlet_list() {
    unload_inlet_list();
}

}  // namespace gullymark::editor
