#pragma once

/// The flow that an inlet must take: discharges of one or two sides, overland flow, bypass of the previous inlets.
/// Steps whose texts are no numbers are left out, and the next one runs.
namespace gullymark::editor {

/// discharge = intensity x runoff area x runoff coefficient, without a unit factor, then the total. A discharge that
/// was typed stands, and the total with it.
void ComputeLeftDischarge();

/// The same on the right.
void ComputeRightDischarge();

/// The sum, cfs or cms; the right side counts in a sump alone. A field that is empty becomes 0 before.
void ComputeTotalDischarge();

/// The discharge on the left is typed from now on, or computed again; in "VIEW" nothing happens.
void Left_override_Click();

/// The same on the right.
void Right_override_Click();

/// What a change to a continuous grade does to the right side; with or without its runoff.
void empty_right_side(bool with_runoff);

}  // namespace gullymark::editor
