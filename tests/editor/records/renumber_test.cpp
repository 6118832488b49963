#include "editor/records/renumber.h"
#include "editor/editor_test.h"
#include "editor/records/grid_events.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/renumber_dialog.h"
#include "editor/state/windows.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

/// A feeds C on the left and B feeds D on the right; the user types into the dialog what `new_number` says.
struct Renumber : EditorTest {
    std::string new_number;
    bool cancels = false;

    Renumber() {
        put_inlets({{{"INLET_NUMBER", "A"}},
                    {{"INLET_NUMBER", "B"}},
                    {{"INLET_NUMBER", "C"}, {"PREINLET1", "A"}},
                    {{"INLET_NUMBER", "D"}, {"PREINLET2", "B"}}});
        show_workspace();
        windows.run_renumber_dialog = [this] {
            EXPECT_TRUE(frminletmodify.visible);
            EXPECT_EQ(frminletmodify.thisinletnumber.text, frminletmodify.CurrentInletNumber);
            EXPECT_EQ(frminletmodify.newinletnumber.text, "");
            edit_new_number(new_number);
            cancels ? cmdmodcancel_Click() : cmdmodaccept_Click();
            stayed = frminletmodify.visible;
        };
    }
    bool stayed = false;

    void renumber(int row, const std::string& number) {
        new_number = number;
        pick_grid_row(row);
        mnuflexmodifyinlet_Click();
    }
    [[nodiscard]] std::string links() const {
        return stored("SELECT INLET_NUMBER, PREINLET1, PREINLET2 FROM INLET ORDER BY INLET_NUMBER");
    }
    const std::string untouched = "A|NULL|NULL\nB|NULL|NULL\nC|A|NULL\nD|NULL|B";
};

Box modify_question(const std::string& number) {
    return question("Modify Current inlet number - " + number + " ?");
}
Box feeds_question(const std::string& number) {
    return question("Current Inlet has Carryover Discharge to Inlet Number - " + number +
                    " - Modify Anyway?");
}
const Box done = information("Update completed! Please Refresh the screen to verify your changes");

TEST_F(Renumber, AnInletThatFeedsNoneGetsItsNumber) {
    user.answers = {Answer::yes};
    renumber(3, "X");
    EXPECT_EQ(boxes(), (Boxes{modify_question("C"), done}));
    EXPECT_EQ(links(), "A|NULL|NULL\nB|NULL|NULL\nD|NULL|B\nX|A|NULL");
    EXPECT_EQ(grid_cell(4, 0), "X");
}

TEST_F(Renumber, TheLinkOnTheLeftIsRewritten) {
    user.answers = {Answer::yes, Answer::yes};
    renumber(1, "X");
    EXPECT_EQ(boxes(), (Boxes{modify_question("A"), feeds_question("C"), done}));
    EXPECT_EQ(links(), "B|NULL|NULL\nC|X|NULL\nD|NULL|B\nX|NULL|NULL");
}

TEST_F(Renumber, TheLinkOnTheRightIsRewritten) {
    user.answers = {Answer::yes, Answer::yes};
    renumber(2, "X");
    EXPECT_EQ(boxes(), (Boxes{modify_question("B"), feeds_question("D"), done}));
    EXPECT_EQ(links(), "A|NULL|NULL\nC|A|NULL\nD|NULL|X\nX|NULL|NULL");
}

TEST_F(Renumber, ANoAtEitherQuestionChangesNothing) {
    renumber(1, "X");
    EXPECT_EQ(boxes(), Boxes{modify_question("A")});
    user.answers = {Answer::yes, Answer::no};
    renumber(1, "X");
    EXPECT_EQ(boxes(), (Boxes{modify_question("A"), feeds_question("C")}));
    EXPECT_TRUE(stayed);
    EXPECT_EQ(frminletmodify.newinletnumber.text, "");
    EXPECT_EQ(links(), untouched);
}

TEST_F(Renumber, ANumberThatExistsIsRefusedAndTheDialogStays) {
    for (const std::string number : {"D", "A"}) {
        user.answers = {Answer::yes};
        renumber(1, number);
        EXPECT_EQ(boxes(),
                  (Boxes{modify_question("A"),
                         warning("New Inlet already exist in the database. Choose another Inlet Number")}));
        EXPECT_TRUE(stayed);
        EXPECT_EQ(frminletmodify.newinletnumber.text, "");
    }
    EXPECT_EQ(links(), untouched);
}

TEST_F(Renumber, AnEmptyNumberIsNoChange) {
    user.answers = {Answer::yes};
    renumber(3, "");
    EXPECT_EQ(boxes(), Boxes{modify_question("C")});
    EXPECT_FALSE(stayed);
    EXPECT_EQ(links(), untouched);
}

TEST_F(Renumber, AnInletThatFeedsTwoOthersIsAskedAboutOnceForItsLeftSide) {
    stored("INSERT INTO INLET (INLET_NUMBER, PREINLET2) VALUES ('E', 'A')");
    user.answers = {Answer::yes, Answer::yes};
    renumber(1, "X");
    EXPECT_EQ(boxes(),
              (Boxes{modify_question("A"), feeds_question("C"),
                     information("Update completed! Please Refresh the screen to verify your changes")}));
    EXPECT_EQ(links(), "B|NULL|NULL\nC|X|NULL\nD|NULL|B\nE|NULL|X\nX|NULL|NULL");
}

TEST_F(Renumber, CancelIsNoChange) {
    user.answers = {Answer::yes};
    cancels = true;
    renumber(3, "X");
    EXPECT_EQ(boxes(), Boxes{modify_question("C")});
    EXPECT_EQ(links(), untouched);
}

TEST_F(Renumber, AnApostropheShowsTheStoresErrors) {
    user.answers = {Answer::yes};
    renumber(3, "O'B");
    const Boxes shown_boxes = boxes();
    ASSERT_EQ(shown_boxes.size(), 3U) << "the question, the usage check, the statement";
    EXPECT_EQ(shown_boxes[1].kind, BoxKind::plain);
    EXPECT_EQ(shown_boxes[2].kind, BoxKind::plain);
    EXPECT_EQ(links(), untouched);
    EXPECT_EQ(user.wait_pointers.back(), false);
}

TEST_F(Renumber, WithoutInletsThereIsNothingToModify) {
    stored("DELETE FROM INLET");
    mnuflexrefresh_Click();
    mnuflexmodifyinlet_Click();
    EXPECT_EQ(boxes(), Boxes{information("No inlets to Modify!")});
}

}  // namespace
}  // namespace gullymark::editor
