#pragma once

#include <string_view>

/// The flow that an inlet must take: discharges of one or two sides, overland flow, bypass of the previous inlets.
/// Steps whose texts are no numbers are left out, and the next one runs.
namespace gullymark::editor {

/// discharge = intensity x runoff area x runoff coefficient, without a unit factor, then the total. A discharge that
/// was typed stands, and the total with it.
void ComputeLeftDischarge();
void ComputeRightDischarge();

/// The sum, cfs or cms; the right side counts in a sump alone.
void ComputeTotalDischarge();

void Left_override_Click();
void Right_override_Click();

/// The rows behind the lists of the previous inlets: "requery" reads them again, any other word opens them.
void get_discharge_carryover(std::string_view kind);

/// The carryover of a side (1: left) takes the bypass of its previous inlet. A number that no inlet has: a plain box
/// with the store's description, and the carryover keeps its text.
void set_discharge_carryover(int side);

void ShowDischargeFrames();

void preinlet1_GotFocus();
void preinlet2_GotFocus();
void preinlet1_LostFocus();
void preinlet2_LostFocus();

/// What a change to a continuous grade does to the right side; the two handlers differ in the runoff fields.
void empty_right_side(bool with_runoff);

}  // namespace gullymark::editor
