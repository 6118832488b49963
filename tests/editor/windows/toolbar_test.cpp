#include <array>

#include "editor/form/inlet_form.h"
#include "editor/records/record_commands.h"
#include "editor/records/screen_mode.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/windows.h"
#include "editor/state/workspace.h"
#include "editor/windows/toolbar.h"
#include "editor/windows/workspace_menu.h"
#include "editor/windows/workspace_test.h"
#include "platform/files.h"

namespace gullymark::editor {
namespace {

// Toolbar.

struct ButtonRow {
    int index;
    const char* mode_after;
};

TEST_F(WorkspaceTest, InViewSaveAndSolveDoNothing) {
    show_with(1);
    for (const int index : {7, 10}) {
        Toolbar1_ButtonClick(index);
        EXPECT_FALSE(MDIInlet.Toolbar1.at(static_cast<std::size_t>(index)).checked);
        EXPECT_EQ(frminletMDIC.screen.tab, 0);
    }
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(WorkspaceTest, InAddAndEditTheButtonsOfViewDoNothing) {
    show_with(1);
    for (const char* word : {"Add", "Edit"}) {
        Activate_menu(word);
        const std::string before(mode());
        for (const int index : {1, 3, 5}) {
            Toolbar1_ButtonClick(index);
            EXPECT_FALSE(MDIInlet.Toolbar1.at(static_cast<std::size_t>(index)).checked);
            EXPECT_EQ(mode(), before);
        }
    }
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(WorkspaceTest, InViewAddCopyAndEditArePressedAndRun) {
    show_with(1);
    const auto rows = std::to_array<ButtonRow>({{1, "ADD"}, {3, "ADD"}, {5, "EDIT"}});
    for (const auto& row : rows) {
        Activate_menu("View");
        user.answers = {Answer::yes};
        Toolbar1_ButtonClick(row.index);
        EXPECT_TRUE(MDIInlet.Toolbar1.at(static_cast<std::size_t>(row.index)).checked);
        EXPECT_EQ(mode(), row.mode_after);
        CancelUpdate();
    }
}

TEST_F(WorkspaceTest, ACopyAnsweredWithNoReleasesItsButton) {
    show_with(1);
    bool pressed = false;
    platform::outside.show_box = [&](const platform::Box&) {
        pressed = MDIInlet.Toolbar1[3].checked;
        return Answer::no;
    };
    Toolbar1_ButtonClick(3);
    EXPECT_TRUE(pressed) << "while it runs";
    EXPECT_FALSE(MDIInlet.Toolbar1[3].checked);
    EXPECT_EQ(mode(), "VIEW");
}

TEST_F(WorkspaceTest, InAnEmptyProjectCopyAndEditReleaseTheirButtons) {
    show_with(0);
    Toolbar1_ButtonClick(3);
    EXPECT_EQ(boxes(), Boxes{information("No records to Copy!")});
    EXPECT_FALSE(MDIInlet.Toolbar1[3].checked);
    Toolbar1_ButtonClick(5);
    EXPECT_EQ(boxes(), Boxes{information("No records to Edit!")});
    EXPECT_FALSE(MDIInlet.Toolbar1[5].checked);
}

TEST_F(WorkspaceTest, SeparatorsDoNothing) {
    show_with(1);
    for (const int index : {0, 2, 4, 6, 8, 9, 11, 12, 14, 15, 17}) {
        Toolbar1_ButtonClick(index);
    }
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_TRUE(MDIInlet.visible);
    for (const auto& button : MDIInlet.Toolbar1) {
        EXPECT_FALSE(button.checked);
    }
}

TEST(WorkspaceToolbar, HasTheseButtons) {
    constexpr auto captions = std::to_array<ToolbarButton>(
        {{1, "Add"}, {3, "Copy"}, {5, "Edit"}, {7, "Save"}, {10, "Solve"}, {13, "Exit"}, {16, "Help"}});
    for (std::size_t i = 0; i < captions.size(); ++i) {
        EXPECT_EQ(toolbar_buttons.at(i).index, captions.at(i).index);
        EXPECT_EQ(toolbar_buttons.at(i).caption, captions.at(i).caption);
    }
}

TEST_F(WorkspaceTest, HelpIsPressedWhileItRuns) {
    show_with(1);
    platform::set_program_folder("/program");
    bool pressed = false;
    platform::outside.open_help = [&](const std::string& help) {
        pressed = MDIInlet.Toolbar1[16].checked;
        EXPECT_EQ(help, "/program/GullymarkAL.chm");
    };
    Toolbar1_ButtonClick(16);
    EXPECT_TRUE(pressed);
    EXPECT_FALSE(MDIInlet.Toolbar1[16].checked);
    platform::set_program_folder("");
}

TEST_F(WorkspaceTest, SolveRunsTheTabOnTheScreenFirst) {
    show_with(1);
    mnuEditinlet_Click();
    click_tab(2);
    frminletMDIC.screen.set_text(txtslotw, "4.00");
    Toolbar1_ButtonClick(10);
    EXPECT_EQ(shown(txtslotw), "");
    EXPECT_TRUE(MDIInlet.Toolbar1[10].checked);
}

// Exit.

const Box exit_question = {
    .kind = BoxKind::information_question, .text = "Exit without Saving?", .title = "Gullymark"};

TEST_F(WorkspaceTest, ExitInViewGoesBackToTheMainWindow) {
    show_with(1);
    mnuExit_Click();
    EXPECT_FALSE(MDIInlet.visible);
    EXPECT_FALSE(frminletMDIC.loaded);
    EXPECT_FALSE(frmgrid.loaded);
    EXPECT_TRUE(store::frmsoftwaremain.visible);
    EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(WorkspaceTest, ExitInAddAsksAndStays) {
    show_with(1);
    mnuAddinlet_Click();
    user.answers = {Answer::no, Answer::yes};
    mnuExit_Click();
    EXPECT_EQ(boxes(), (Boxes{information("Please enter a valid unique Inlet Number!"), exit_question}));
    EXPECT_EQ(mode(), "ADD");
    type(Inlet_Number, "9");
    mnuExit_Click();
    EXPECT_EQ(boxes(), Boxes{exit_question});
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_TRUE(MDIInlet.visible);
    EXPECT_EQ(stored("SELECT count(*) FROM INLET"), "1");
    mnuExit_Click();
    EXPECT_FALSE(MDIInlet.visible);
}

TEST_F(WorkspaceTest, ExitMovesTheFocusOnFirst) {
    show_with(1);
    mnuEditinlet_Click();
    int moves = 0;
    windows.move_focus_on = [&moves] { ++moves; };
    mnuExit_Click();
    EXPECT_EQ(moves, 1);
}

TEST_F(WorkspaceTest, TheExitButtonLeavesSolvePressed) {
    show_with(1);
    mnuEditinlet_Click();
    for (const std::size_t index : {1U, 3U, 5U, 7U, 16U}) {
        MDIInlet.Toolbar1.at(index).checked = true;
    }
    Toolbar1_ButtonClick(13);
    for (const std::size_t index : {1U, 3U, 5U, 7U, 16U}) {
        EXPECT_FALSE(MDIInlet.Toolbar1.at(index).checked) << index;
    }
    EXPECT_TRUE(MDIInlet.Toolbar1[10].checked);
    EXPECT_EQ(mode(), "EDIT") << "the answer was No";
}

TEST_F(WorkspaceTest, TheSystemMenuClosesLikeExit) {
    show_with(1);
    mnuEditinlet_Click();
    user.answers = {Answer::yes};
    EXPECT_FALSE(MDIForm_QueryUnload(0)) << "the first leaves the edit";
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_TRUE(MDIForm_QueryUnload(0)) << "the second leaves the window";
    EXPECT_TRUE(store::frmsoftwaremain.visible);
}

TEST_F(WorkspaceTest, AnyOtherUnloadingAsksTheSame) {
    show_with(1);
    mnuEditinlet_Click();
    int moves = 0;
    windows.move_focus_on = [&moves] { ++moves; };
    EXPECT_FALSE(MDIForm_QueryUnload(2));
    EXPECT_EQ(boxes(), Boxes{exit_question});
    EXPECT_EQ(mode(), "EDIT");
    user.answers = {Answer::yes};
    EXPECT_FALSE(MDIForm_QueryUnload(2));
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_EQ(moves, 0);
    EXPECT_TRUE(MDIForm_QueryUnload(2));
    EXPECT_FALSE(MDIInlet.visible);
    EXPECT_TRUE(store::frmsoftwaremain.visible);
}

TEST_F(WorkspaceTest, AWorkspaceThatIsShownStaysAsItIs) {
    show_with(1);
    mnuEditinlet_Click();
    show_workspace();
    EXPECT_EQ(mode(), "EDIT");
}

}  // namespace
}  // namespace gullymark::editor
