// Another program locks the file at the moment when the program asks whether a number is used. What could not be read is
// not taken for a number that nobody uses.

#include "editor/editor_test.h"
#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/records/grid_events.h"
#include "editor/records/renumber.h"
#include "editor/state/inlet_grid.h"
#include "editor/state/renumber_dialog.h"
#include "editor/state/windows.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {
namespace {

/// A feeds C on the left and B feeds D on the right. The other program lets go when the first failure has been told.
struct UnreadUsage : EditorTest {
    sqlite3* other = nullptr;

    UnreadUsage() {
        put_inlets({{{"INLET_NUMBER", "A"}},
                    {{"INLET_NUMBER", "B"}},
                    {{"INLET_NUMBER", "C"}, {"PREINLET1", "A"}},
                    {{"INLET_NUMBER", "D"}, {"PREINLET2", "B"}}});
        show_workspace();
        sqlite3_open(path.c_str(), &other);
        platform::outside.show_box = [this, show_box = platform::outside.show_box](const Box& box) {
            if (box == locked) {
                let_go();
            }
            return show_box(box);
        };
    }
    ~UnreadUsage() override { sqlite3_close(other); }

    void lock() const { sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr); }
    void let_go() const { sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr); }

    [[nodiscard]] std::string links() const {
        return stored("SELECT INLET_NUMBER, PREINLET1, PREINLET2 FROM INLET ORDER BY INLET_NUMBER");
    }
    const std::string untouched = "A|NULL|NULL\nB|NULL|NULL\nC|A|NULL\nD|NULL|B";
};

TEST_F(UnreadUsage, AnInletThatMayFeedAnotherIsNotDeleted) {
    for (const int row : {1, 2}) {
        pick_grid_row(row);
        user.answers = {platform::Answer::yes};
        platform::outside.show_box = [this, show_box = platform::outside.show_box](const Box& box) {
            if (box.kind == BoxKind::warning_question) {
                lock();
            }
            return show_box(box);
        };
        mnuflexdeleteinlet_Click();
        EXPECT_EQ(links(), untouched);
        EXPECT_EQ(boxes(), (std::vector<Box>{
                               question("Delete Current Inlet - " + current_grid_number() + " ?"), locked}));
    }
}

TEST_F(UnreadUsage, ANewNumberThatMayBeAnothersIsNotGiven) {
    windows.run_renumber_dialog = [this] {
        edit_new_number("C");
        lock();
        cmdmodaccept_Click();
        EXPECT_TRUE(frminletmodify.visible);
        EXPECT_EQ(frminletmodify.newinletnumber.text, "");
        cmdmodcancel_Click();
    };
    pick_grid_row(4);
    user.answers = {platform::Answer::yes};
    mnuflexmodifyinlet_Click();
    EXPECT_EQ(links(), untouched);
    EXPECT_EQ(boxes(), (std::vector<Box>{question("Modify Current inlet number - D ?"), locked}));
}

TEST_F(UnreadUsage, ANewInletsNumberThatMayBeAnothersIsTakenAway) {
    mnuAddinlet_Click();
    enter(Inlet_Number);
    edited(Inlet_Number, "C");
    lock();
    leave_focused_field();
    EXPECT_EQ(shown(Inlet_Number), "");
    EXPECT_EQ(frminletMDIC.wanted_focus, Inlet_Number);
    EXPECT_EQ(boxes(), (std::vector<Box>{locked}));
}

TEST_F(UnreadUsage, AnInletThatMayFeedAnotherIsNotNamedAgain) {
    pick_grid_row(4);
    mnuEditinlet_Click();
    tab_clicked(1);
    enter(preinlet1);
    edited(preinlet1, "A");
    lock();
    leave_focused_field();
    EXPECT_EQ(shown(preinlet1), "");
    EXPECT_EQ(shown(carryover1), "0.0");
    EXPECT_EQ(boxes(), (std::vector<Box>{locked}));
}

}  // namespace
}  // namespace gullymark::editor
