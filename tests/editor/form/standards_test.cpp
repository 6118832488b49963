#include "catalogue/standards.h"

#include <array>

#include "catalogue/pick.h"
#include "editor/editor_test.h"
#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/state/windows.h"
#include "editor/windows/toolbar.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

using engine::Column;
using engine::open_inlet;

/// A new inlet, and a table window that closes at once, with a row picked when one is set.
class InletStandards : public EditorTest {
  protected:
    std::vector<std::string> opened;  // names of the tables
    std::string row;                  // the text of the row that the user selects, empty for Cancel
    std::string clogging_behind;      // what cboClog shows while the table is open

    explicit InletStandards(const std::string& units = "ENGLISH") : EditorTest(units) {
        show_workspace();
        add_inlet("A");
        windows.show_standards = [this](const catalogue::Table& table) {
            opened.emplace_back(table.name);
            clogging_behind = shown(cboClog);
            catalogue::pick(table, row);
        };
    }

    void open_for(std::string_view location, std::string_view type) {
        pick(inlet_location, location);
        pick(inlet_type, type);
        leave_focused_field();
        clicked(inletstd_help);
    }
};

struct MetricInletStandards : InletStandards {
    MetricInletStandards() : InletStandards("METRIC") {}
};

TEST_F(InletStandards, EachKindOpensItsTable) {
    const std::vector<std::array<std::string, 3>> kinds_with_tables = {
        {"CONTINUOUS GRADE", "Curb Inlet", "frmCIG"},
        {"SUMP", "Curb Inlet", "frmCIS"},
        {"CONTINUOUS GRADE", "Grate Inlet", "frmGIG"},
        {"SUMP", "Grate Inlet", "frmGIS"},
        {"CONTINUOUS GRADE", "Combination Curb and Grate Inlet", "frmCCGG"},
        {"SUMP", "Combination Curb and Grate Inlet", "frmCCGS"},
        {"CONTINUOUS GRADE", "Grate Inlet in a Ditch", "frmDitchInletCG"},
        {"SUMP", "Grate Inlet in a Ditch", "frmDitchInletSU"},
    };
    for (const auto& [location, type, table] : kinds_with_tables) {
        opened.clear();
        open_for(location, type);
        EXPECT_EQ(opened, std::vector{table});
        EXPECT_TRUE(field(inletstd_help).enabled);
    }
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(InletStandards, ASlottedInletDisablesTheButtonAndOpensNothing) {
    for (const auto* location : {"CONTINUOUS GRADE", "SUMP"}) {
        open_for(location, "Slotted Inlet");
        EXPECT_FALSE(field(inletstd_help).enabled);
    }
    EXPECT_EQ(opened, std::vector<std::string>{});
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(InletStandards, ABeginningOfATypeOpensNothing) {
    type(inlet_type, "Cu");
    leave_focused_field();
    clicked(inletstd_help);
    EXPECT_EQ(opened, std::vector<std::string>{});
    EXPECT_FALSE(field(inletstd_help).enabled);
}

TEST_F(InletStandards, TheClickItselfEnablesTheButtonFirst) {
    frminletMDIC.screen[inletstd_help].enabled = false;
    clicked(inletstd_help);
    EXPECT_EQ(opened, std::vector<std::string>{"frmCIG"});
    EXPECT_TRUE(field(inletstd_help).enabled);
}

TEST_F(InletStandards, ADitchOnGradeStartsItsCloggingAnewBeforeTheTableOpens) {
    pick(inlet_type, "Grate Inlet in a Ditch");
    leave_focused_field();
    frminletMDIC.screen.set_text(cboClog, "25");
    clicked(inletstd_help);
    EXPECT_EQ(clogging_behind, "0");
    EXPECT_EQ(shown(cboClog), "0");
    EXPECT_TRUE(field(cboClog).enabled);
}

TEST_F(InletStandards, ADitchInASumpKeepsItsCloggingAndItsListIsDisabled) {
    pick(inlet_location, "SUMP");
    pick(inlet_type, "Grate Inlet in a Ditch");
    leave_focused_field();
    frminletMDIC.screen.set_text(cboClog, "25");
    frminletMDIC.screen[cboClog].enabled = true;
    clicked(inletstd_help);
    EXPECT_EQ(clogging_behind, "25");
    EXPECT_FALSE(field(cboClog).enabled);
}

TEST_F(InletStandards, NoOtherTableTouchesTheClogging) {
    pick(inlet_type, "Grate Inlet");
    leave_focused_field();
    frminletMDIC.screen.set_text(cboClog, "25");
    clicked(inletstd_help);
    EXPECT_EQ(clogging_behind, "25");
    EXPECT_EQ(shown(cboClog), "25");
}

TEST_F(InletStandards, APickShowsInTheFields) {
    row = "PR(Curb)\t3.438\t4.042\t25\t3.031\t7.140\t9.500";
    pick(inlet_location, "SUMP");
    pick(inlet_type, "Grate Inlet");
    leave_focused_field();
    clicked(inletstd_help);
    EXPECT_EQ(shown(inlet_subtype), "PR(Curb)");
    EXPECT_EQ(shown(cboLength), "3.438");
    EXPECT_EQ(shown(txtWg), "4.042");
    EXPECT_EQ(shown(cboClog), "25");
    EXPECT_EQ(shown(cboCurb), "With Curb");
    EXPECT_EQ(shown(txtArea), "9.520");
    EXPECT_EQ(shown(txtPeri), "11.521");
    EXPECT_EQ(open_inlet.text(Column::RAREA), "7.140");
    EXPECT_EQ(open_inlet.text(Column::EFFPERI), "9.500");
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(InletStandards, APickAfterASolveMakesTheInletUnsolvedAndCancelDoesNot) {
    click_tab(1);
    clicked(Left_override);
    type(discharge1, "2");
    Toolbar1_ButtonClick(10);
    ASSERT_TRUE(engine::DataSolved);
    clicked(inletstd_help);
    EXPECT_TRUE(engine::DataSolved);
    row = "S4 ONE WING\t25\t12.75\t9.56";
    clicked(inletstd_help);
    EXPECT_FALSE(engine::DataSolved);
}

TEST_F(InletStandards, CancelLeavesTheInletAsItWas) {
    pick(inlet_location, "SUMP");
    pick(inlet_type, "Combination Curb and Grate Inlet");
    leave_focused_field();
    std::map<Column, std::string> before;
    for (const Column column : engine::all_columns) {
        before[column] = open_inlet.text(column);
    }
    clicked(inletstd_help);
    ASSERT_EQ(opened, std::vector<std::string>{"frmCCGS"});
    for (const Column column : engine::all_columns) {
        EXPECT_EQ(open_inlet.text(column), before[column]) << engine::column_name(column);
    }
}

TEST_F(MetricInletStandards, APickWritesFeet) {
    row = "S4 ONE WING\t25\t12.75\t9.56";
    open_for("CONTINUOUS GRADE", "Curb Inlet");
    EXPECT_EQ(shown(cboLength), "12.75");
}

}  // namespace
}  // namespace gullymark::editor
