#pragma once

/// The four pages of the design form's `SSTab1`: 0 details, 1 flow data, 2 inlet data, 3 results.
namespace gullymark::editor {

/// Shows a page as if its tab was clicked; the one that is shown stays as it is. The field that had the focus is not
/// left, and nothing is wanted any more.
void show_tab(int tab);

/// The page of the screen was clicked: sets it up, and the overrides of the flow data with it.
void SSTab1_Click();

/// Sets up what a page shows; a number that is no page does nothing.
void set_tab_display(int tab);

/// Tab 1: `show_discharge_frames` on the design form.
void ShowDischargeFrames();

}  // namespace gullymark::editor
