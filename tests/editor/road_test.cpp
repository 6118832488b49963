#include "editor/editor_test.h"
#include "editor/form/inlet_form.h"
#include "editor/state/workspace.h"
#include "editor/windows/toolbar.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

struct Road : EditorTest {};

TEST_F(Road, AnInletIsAddedSolvedSavedAndFoundAgain) {
    show_workspace();
    EXPECT_EQ(mode(), "VIEW");
    add_curb_inlet("A1", "1.77");
    EXPECT_EQ(shown(QTotal), "1.770");
    type(txtW, "0");
    type(txtSx, "0.02");
    type(cboLength, "9.84");
    Toolbar1_ButtonClick(10);
    EXPECT_EQ(frminletMDIC.screen.tab, 3);
    const std::string intercepted = shown(txtQi);
    EXPECT_NE(intercepted, "");
    mnuSaveinlet_Click();
    EXPECT_EQ(boxes(), Boxes{information("Record Saved")});
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_EQ(stored("SELECT INLET_NUMBER, TOTAL_DISCHARGE, INLETLENGTH, QINT FROM INLET"),
              "A1|1.770|9.840|" + intercepted);

    mnuExit_Click();
    EXPECT_FALSE(MDIInlet.visible);
    EXPECT_TRUE(store::frmsoftwaremain.visible);
    show_workspace();
    EXPECT_EQ(shown(Inlet_Number), "A1");
    EXPECT_EQ(shown(txtQi), intercepted);
    EXPECT_EQ(boxes(), Boxes{});
}

}  // namespace
}  // namespace gullymark::editor
