#include "editor/form/carryover.h"

#include <array>
#include <string>
#include <utility>

#include "editor/form/discharge.h"
#include "editor/form/form_access.h"
#include "editor/form/pages.h"
#include "editor/form/sides.h"
#include "engine/inlet_flow.h"
#include "platform/failure.h"
#include "platform/number_text.h"
#include "platform/outside.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::editor {
namespace {

using platform::BoxKind;
using platform::tell;
using enum FieldId;

/// One previous inlet field. The usage checks go through the columns of both sides, the own one first.
struct PreviousInlet {
    int number;
    const Side& side;
    const Side& other_side;
    std::string_view same_as_other;
    std::array<std::string_view, 2> usage_columns;
};

constexpr PreviousInlet left_inlet{1,
                                   left_side,
                                   right_side,
                                   "Previous Inlet for left side CANNOT be same as right side!",
                                   {"PREINLET1", "PREINLET2"}};
constexpr PreviousInlet right_inlet{2,
                                    right_side,
                                    left_side,
                                    "Previous Inlet for right side CANNOT be same as left side!",
                                    {"PREINLET2", "PREINLET1"}};

/// True after telling that it is, or that this cannot be read.
bool is_used_elsewhere(const PreviousInlet& previous, const std::string& number) {
    for (const std::string_view column : previous.usage_columns) {
        const auto usage = store::find_inlet_usage(number, column);
        if (usage == store::InletUsage::unread) {
            return true;
        }
        if (usage == store::InletUsage::a_row) {
            tell("This Inlet has already been used as a Previous Inlet for Inlet - " +
                     store::session.ReferencingInletNumber + " - Please choose a different value!",
                 BoxKind::warning);
            return true;
        }
    }
    return false;
}

/// True after telling why the number cannot be the previous inlet of that side.
bool refuses(const PreviousInlet& previous, const std::string& number) {
    if (number == text(Inlet_Number)) {
        tell("Previous Inlet is same as Current Inlet");
        return true;
    }
    if (number == text(previous.other_side.preinlet)) {
        tell(std::string(previous.same_as_other));
        return true;
    }
    return number != frminletMDIC.preinlet_at_entry && is_used_elsewhere(previous, number);
}

void leave_previous_inlet(const PreviousInlet& previous) {
    const FieldId preinlet = previous.side.preinlet;
    const std::string number(platform::trim_blanks(text(preinlet)));
    set_text(preinlet, number);
    if (number.empty()) {
        set_text(previous.side.carryover, "0.0");
        return;
    }
    if (refuses(previous, number)) {
        set_text(preinlet, "");
        set_text(previous.side.carryover, "0.0");
        show_tab(1);
        frminletMDIC.wanted_focus = preinlet;
        return;
    }
    set_discharge_carryover(previous.number);
    ComputeTotalDischarge();
}

void open_carryover() {
    auto& rows = frminletMDIC.carryoverRS;
    rows = platform::RowSet();
    rows.open(store::project_store.connection, store::select_carryover);
}

/// The list has one entry an inlet, read when the field is entered.
void enter_previous_inlet(FieldId preinlet) {
    frminletMDIC.preinlet_at_entry = text(preinlet);
    SelectFieldText(preinlet);
    auto& entries = field(preinlet).entries;
    entries.clear();
    try {
        if (!frminletMDIC.carryoverRS.is_open()) {
            open_carryover();
        }
        for (auto& number : frminletMDIC.carryoverRS.all_values("INLET_NUMBER")) {
            entries.push_back(std::move(number).value_or(""));
        }
    } catch (const platform::Failure& failure) {
        tell(failure.what());
    }
}

}  // namespace

void preinlet1_GotFocus() {
    enter_previous_inlet(preinlet1);
}

void preinlet2_GotFocus() {
    enter_previous_inlet(preinlet2);
}

void preinlet1_LostFocus() {
    leave_previous_inlet(left_inlet);
}

void preinlet2_LostFocus() {
    leave_previous_inlet(right_inlet);
}

void get_discharge_carryover(std::string_view kind) {
    try {
        field(preinlet1).entries.clear();
        field(preinlet2).entries.clear();
        auto& rows = frminletMDIC.carryoverRS;
        if (kind == "requery" && rows.is_open()) {
            rows.requery();
        } else {
            open_carryover();
        }
        if (rows.record_count() >= 1) {
            rows.move_first();
        }
    } catch (const platform::Failure& failure) {
        tell(failure.what());
    }
}

void set_discharge_carryover(int side) {
    const FieldId preinlet = side == 1 ? preinlet1 : preinlet2;
    const FieldId carryover = side == 1 ? carryover1 : carryover2;
    try {
        auto& rows = frminletMDIC.carryoverRS;
        if (!rows.is_open()) {
            open_carryover();
        }
        store::find_inlet(rows, text(preinlet));
        if (rows.at_end()) {
            throw platform::Failure(store::not_in_project(text(preinlet)));
        }
        const std::string bypass = rows.value("QCARRY").value_or("");
        set_text(carryover, engine::carryover_from(bypass));
        rows.move_first();
    } catch (const platform::Failure& failure) {
        tell(failure.what());
    }
}

}  // namespace gullymark::editor
