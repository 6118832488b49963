#include <array>
#include <fstream>

#include "editor/editor_test.h"
#include "editor/form/screen_fields.h"
#include "editor/records/grid_events.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/workspace.h"
#include "editor/windows/inlet_list.h"
#include "editor/windows/inlet_view.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

struct Lists : EditorTest {
    Lists() {
        put_inlets({{{"INLET_NUMBER", "10"},
                     {"STATION", "10+00"},
                     {"OFFSET", "-5.000"},
                     {"INLET_TYPE", "Curb Inlet"},
                     {"INLET_LOCATION", "SUMP"},
                     {"INLET_SUBTYPE", "S1 TWO WINGS"},
                     {"INLETLENGTH", "16.50"},
                     {"PREINLET1", " 2 "},
                     {"PREINLET2", "7"},
                     {"TOTAL_DISCHARGE", "1.770"}},
                    {{"INLET_NUMBER", "2"}},
                    {{"INLET_NUMBER", "7"}}});
    }
};

// The grid.

TEST_F(Lists, TheGridShowsNumberStationAndOffset) {
    show_workspace();
    EXPECT_EQ(grid_cell(1, 0), "10");
    EXPECT_EQ(grid_cell(1, 1), "10+00");
    EXPECT_EQ(grid_cell(1, 2), "-5.000");
    EXPECT_EQ(grid_cell(2, 1), "");
    EXPECT_EQ(grid_cell(0, 0), "");
    EXPECT_EQ(grid_cell(4, 0), "");
    EXPECT_EQ(grid_headings, (std::array<std::string_view, 3>{"INLET_ID", "STATION", "OFFSET"}));
}

TEST_F(Lists, OutsideViewTheGridDoesNotMoveTheForm) {
    show_workspace();
    mnuEditinlet_Click();
    EXPECT_FALSE(frmgrid.enabled);
    pick_grid_row(2);
    EXPECT_EQ(shown(Inlet_Number), "10");
    EXPECT_EQ(MDIInlet.CurrentGridRow, 2) << "the cell was entered";
}

TEST_F(Lists, TheHeadingOfTheGridDoesNothing) {
    show_workspace();
    pick_grid_row(0);
    EXPECT_EQ(shown(Inlet_Number), "10");
    EXPECT_EQ(MDIInlet.CurrentGridRow, 0);
    SelectGridRow();
    EXPECT_EQ(frmgrid.row, 1);
}

TEST_F(Lists, LoadingTheGridMakesTheRecordSavable) {
    show_workspace();
    engine::DataSolved = false;
    unload_inlet_grid();
    load_inlet_grid();
    EXPECT_TRUE(engine::DataSolved);
}

// The listing.

TEST_F(Lists, TheListingShowsTenColumnsAndTheCount) {
    show_workspace();
    mnuviewInlets_Click();
    EXPECT_TRUE(frminletflex.visible);
    EXPECT_EQ(frminletflex.caption, "Inlet Listing - VIEW MODE");
    EXPECT_EQ(list_count_label, "Total Number of Inlets in the Project Database:");
    EXPECT_EQ(frminletflex.rec_count.text, "3");
    constexpr auto cells = std::to_array<std::string_view>(
        {"10", "10+00", "-5.000", "Curb Inlet", "SUMP", "S1 TWO WINGS", "16.50", " 2 ", "7", "1.770"});
    for (std::size_t i = 0; i < cells.size(); ++i) {
        EXPECT_EQ(list_cell(1, i), cells.at(i));
    }
    EXPECT_EQ(list_headings, (std::array<std::string_view, 10>{"INLET_ID", "STATION", "OFFSET", "TYPE",
                                                               "LOCATION", "INLET STD", "LENGTH",
                                                               "PRE-INLET1", "PRE-INLET2", "DISCHARGE"}));
    EXPECT_EQ(frminletflex.row, 1);
    EXPECT_EQ(frminletflex.kept_row, 1);
    EXPECT_EQ(frminletflex.ViewInletNumber, "10");
    EXPECT_EQ(engine::unit_constants.numberFormat, "0.000");
}

TEST_F(Lists, TheListingOfAnEmptyProjectCountsZero) {
    stored("DELETE FROM INLET");
    show_workspace();
    mnuviewInlets_Click();
    EXPECT_EQ(frminletflex.rec_count.text, "0");
    EXPECT_EQ(frminletflex.row, 0);
    inletflex_DblClick();
    EXPECT_EQ(boxes(), Boxes{});
    inletflex_EnterCell(1);
    inletflex_DblClick();
    EXPECT_EQ(boxes(), Boxes{information("No inlets to View/Edit!")});
    EXPECT_FALSE(frmviewinlet.visible);
}

TEST_F(Lists, TheListingShowsTheStoresError) {
    show_workspace();
    store::project_store.connection.close();
    mnuviewInlets_Click();
    const Boxes shown_boxes = boxes();
    ASSERT_FALSE(shown_boxes.empty());
    EXPECT_EQ(shown_boxes[0].kind, BoxKind::plain);
    EXPECT_EQ(shown_boxes[0].title, "GullymarkAL");
}

TEST_F(Lists, AClickKeepsRowAndNumber) {
    show_workspace();
    mnuviewInlets_Click();
    inletflex_EnterCell(2);
    inletflex_Click();
    EXPECT_EQ(frminletflex.kept_row, 2);
    EXPECT_EQ(frminletflex.ViewInletNumber, "2");
    inletflex_EnterCell(0);
    inletflex_Click();
    EXPECT_EQ(frminletflex.ViewInletNumber, "2");
}

TEST_F(Lists, ADoubleClickShowsTheRecordAndBackAgain) {
    show_workspace();
    mnuviewInlets_Click();
    inletflex_EnterCell(1);
    inletflex_DblClick();
    EXPECT_EQ(frminletflex.ViewPreinlet1, "2");
    EXPECT_EQ(frminletflex.ViewPreinlet2, "7");
    EXPECT_FALSE(frminletflex.visible);
    EXPECT_TRUE(frmviewinlet.visible);
    EXPECT_EQ(frmviewinlet.caption, "Inlet Record - VIEW MODE");
    unload_inlet_view();
    EXPECT_FALSE(frmviewinlet.visible);
    EXPECT_TRUE(frminletflex.visible);
}

TEST_F(Lists, ADoubleClickOnTheHeadingDoesNothing) {
    show_workspace();
    mnuviewInlets_Click();
    inletflex_EnterCell(0);
    inletflex_DblClick();
    EXPECT_TRUE(frminletflex.visible);
    EXPECT_FALSE(frmviewinlet.visible);
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(Lists, RefreshShowsNewRowsButTheCountLagsBehind) {
    show_workspace();
    mnuviewInlets_Click();
    inletflex_EnterCell(2);
    put_inlets({{{"INLET_NUMBER", "0"}}});
    refresh_inlet_list();
    EXPECT_EQ(list_cell(1, 0), "0");
    EXPECT_EQ(frminletflex.rec_count.text, "3");
    EXPECT_EQ(frminletflex.row, 2);
    stored("DELETE FROM INLET");
    refresh_inlet_list();
    EXPECT_EQ(frminletflex.rec_count.text, "0");
}

TEST_F(Lists, TheListingLoadsOnceAndClosesOnExit) {
    show_workspace();
    mnuviewInlets_Click();
    inletflex_EnterCell(3);
    mnuviewInlets_Click();
    EXPECT_EQ(frminletflex.row, 3);
    exit_inlet_list();
    EXPECT_FALSE(frminletflex.visible);
    EXPECT_FALSE(frminletflex.loaded);
}

TEST_F(Lists, ListingAndViewGoWithTheWorkspace) {
    show_workspace();
    mnuviewInlets_Click();
    inletflex_DblClick();
    mnuExit_Click();
    EXPECT_FALSE(frminletflex.visible);
    EXPECT_FALSE(frmviewinlet.visible);
}

// The record view.

struct RecordView : EditorTest {
    explicit RecordView(const std::string& units = "ENGLISH") : EditorTest(units) {
        put_inlets({{{"INLET_NUMBER", "A"},
                     {"INLET_TYPE", "Grate Inlet"},
                     {"INLET_LOCATION", "CONTINUOUS GRADE"},
                     {"GRATETYPE", "Reticuline"},
                     {"SLOTWIDTH", "4.00"}},
                    {{"INLET_NUMBER", "B"},
                     {"INLET_TYPE", "Grate Inlet in a Ditch"},
                     {"INLET_LOCATION", "SUMP"},
                     {"LDISCHARGE_OVERRIDE", "YES"},
                     {"GRATETYPE", "Curved Vane"},
                     {"PAVXSLOPE", "0.02"},
                     {"QINT", "1.234"}}});
        show_workspace();
        mnuviewInlets_Click();
        inletflex_EnterCell(2);
        inletflex_DblClick();
    }
    static const platform::Field& viewed(FieldId id) { return frmviewinlet.screen[id]; }
    static const std::string& viewed_text(FieldId id) { return frmviewinlet.screen.text(id); }
};
struct MetricRecordView : RecordView {
    MetricRecordView() : RecordView("METRIC") {}
};

TEST_F(RecordView, ShowsTheOneRecordAndLeavesTheFormAlone) {
    EXPECT_EQ(viewed_text(Inlet_Number), "B");
    EXPECT_EQ(viewed_text(txtProject), "Mill Road");
    EXPECT_EQ(viewed_text(txtQi), "1.234");
    EXPECT_EQ(shown(Inlet_Number), "A");
    EXPECT_EQ(frmviewinlet.screen.tab, 0);
    EXPECT_EQ(engine::unit_constants.numberFormat, "0.000");
    for (const FieldId frame : {Project_Details_Frame, Input_Details_Frame, Flow_Data_Frame, CG_frame}) {
        EXPECT_FALSE(viewed(frame).enabled);
    }
}

TEST_F(RecordView, TheFlowTabShowsBothSidesOfASumpAndTheOverrides) {
    view_tab_clicked(1);
    EXPECT_TRUE(viewed(discharge2_frame).visible);
    EXPECT_EQ(viewed(discharge1_frame).caption, "LEFT");
    EXPECT_EQ(viewed(discharge2_frame).caption, "RIGHT");
    EXPECT_TRUE(viewed(Left_override).checked);
    EXPECT_FALSE(viewed(runoff_area).enabled);
    EXPECT_TRUE(viewed(discharge1).enabled);
    EXPECT_FALSE(viewed(Right_override).checked);
    EXPECT_FALSE(viewed(discharge2).enabled);
}

TEST_F(RecordView, TheInletDataTabSetsUpTheFieldsOfTheDesignFormAndKeepsItsOwn) {
    EXPECT_EQ(shown(cboType), "Reticuline");
    view_tab_clicked(2);
    EXPECT_EQ(viewed(lbl_IL).caption, "GRATE LENGTH");
    EXPECT_EQ(viewed(lbl_GUW).caption, "GUTTER WIDTH");
    EXPECT_EQ(viewed_text(cboType), "Curved Vane");
    EXPECT_EQ(viewed_text(txtSx), "0.02");
    EXPECT_EQ(shown(cboType), "") << "the operation of the viewed kind ran on the open inlet";
    EXPECT_EQ(stored("SELECT GRATETYPE FROM INLET WHERE INLET_NUMBER = 'A'"), "Reticuline");
}

TEST_F(RecordView, TheResultsTabHasItsCaptions) {
    viewed_inlet.load(engine::Column::INLET_LOCATION, "CONTINUOUS GRADE");
    view_tab_clicked(3);
    EXPECT_EQ(viewed(rlbldepth).caption, "DEPTH OF WATER");
    EXPECT_EQ(viewed(rlblflowratio).caption, "DITCH FLOW RATIO");
    EXPECT_FALSE(viewed(Results_Frame).enabled);
}

TEST_F(MetricRecordView, ShowsTheEnglishUnitCaptions) {
    EXPECT_EQ(field(ftm).caption, "m");
    EXPECT_EQ(viewed(ftm).caption, "ft");
    EXPECT_EQ(viewed(cfscms).caption, "cfs");
    EXPECT_EQ(viewed(lblachc).caption, "Ac");
}

TEST_F(RecordView, AnApostropheShowsTheStoresError) {
    frminletflex.ViewInletNumber = "O'B";
    show_inlet_view();
    const Boxes shown_boxes = boxes();
    ASSERT_EQ(shown_boxes.size(), 1U);
    EXPECT_EQ(shown_boxes[0].kind, BoxKind::plain);
    EXPECT_EQ(viewed_text(Inlet_Number), "");
}

/// Breaks every row that is longer than a page: the pages that carry it on lead nowhere.
void damage_long_rows(const std::string& path) {
    constexpr std::streamoff page = 4096;
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    std::string start(8, ' ');
    for (std::streamoff at = 0; file.seekg(at).read(start.data(), 8); at += page) {
        if (start.substr(4) == "xxxx") {
            file.seekp(at).write("\xFF\xFF\xFF\xFF", 4);
        }
    }
}

TEST_F(RecordView, ADamagedRowShowsTheStoresErrorAndAnEmptyRecord) {
    put_inlets({{{"INLET_NUMBER", "C"}, {"GUTTERSPREAD", std::string(20000, 'x')}}});
    damage_long_rows(path);
    frminletflex.ViewInletNumber = "C";
    show_inlet_view();
    EXPECT_EQ(boxes(), Boxes{plain("database disk image is malformed")});
    EXPECT_TRUE(frmviewinlet.visible);
    EXPECT_EQ(viewed_text(Inlet_Number), "");
}

TEST_F(RecordView, TheNumberFormatStaysThatOfTheWindowOpenedLast) {
    mnuEditinlet_Click();
    EXPECT_EQ(engine::unit_constants.numberFormat, "0.000");
    user.answers = {Answer::yes};
    mnuExit_Click();
    EXPECT_EQ(engine::unit_constants.numberFormat, "#0.000");
}

// A file of the old schema.

TEST_F(EditorTest, AFileOfTheOldSchemaOpensSolvesAndSavesWhatItHas) {
    for (const char* column : {"LDISCHARGE_OVERRIDE", "RDISCHARGE_OVERRIDE", "RUNOFF_AREA", "RUNOFF_COEFF",
                               "INTENSITY", "RUNOFF_AREA2", "RUNOFF_COEFF2", "INTENSITY2", "INLETXSLOPE"}) {
        stored("ALTER TABLE INLET DROP COLUMN " + std::string(column));
    }
    show_workspace();
    EXPECT_EQ(boxes(), Boxes{});
    add_curb_inlet("A", "1");
    EXPECT_EQ(shown(txtSdashW), "0.3333");
    solve_and_save();
    EXPECT_EQ(boxes(), Boxes{information("Record Saved")});
    EXPECT_EQ(stored("SELECT INLET_NUMBER, DISCHARGE1 FROM INLET"), "A|1.000");
    EXPECT_EQ(shown(txtSdashW), "");
    EXPECT_NE(shown(txtQi), "");
}

}  // namespace
}  // namespace gullymark::editor
