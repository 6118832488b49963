// The project's file is taken away, replaced, locked or changed by another program while it is open. What had been
// saved stays; a save that fails is not told.

#include "editor/form/field_events.h"
#include "editor/form/inlet_form.h"
#include "editor/records/life_cycle_test.h"
#include "editor/state/workspace.h"
#include "editor/windows/toolbar.h"
#include "editor/windows/workspace_menu.h"
#include "support/cut_short.h"

namespace gullymark::editor {
namespace {

namespace fs = std::filesystem;
using testing_support::read_file;

struct FileFaults : LifeCycle {
    static void edit_station(int row, const std::string& station) {
        edit(row);
        type(Station, station);
        solve_and_save();
    }
    [[nodiscard]] std::string stations() const {
        return stored("SELECT INLET_NUMBER, STATION FROM INLET ORDER BY INLET_NUMBER");
    }
};

TEST_F(FileFaults, RemovedItIsNotMadeAnew) {
    fs::remove(path);
    edit_station(1, "1+00");
    EXPECT_EQ(boxes().front(), saved);
    EXPECT_FALSE(fs::exists(path));
    mnuflexdeleteinlet_Click();
    mnuviewInlets_Click();
    mnuExit_Click();
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(FileFaults, ItsFolderRemovedTheProgramGoesOn) {
    fs::remove_all(folder.path());
    edit_station(1, "1+00");
    EXPECT_EQ(boxes().front(), saved);
    mnuExit_Click();
    EXPECT_FALSE(MDIInlet.visible);
    EXPECT_FALSE(fs::exists(folder.path()));
}

TEST_F(FileFaults, ReplacedByAnotherNothingIsWrittenIntoThatOne) {
    const std::string other = folder.path("other.gmk");
    testing_support::make_project_file(other);
    testing_support::put_inlets(other, {{{"INLET_NUMBER", "X"}, {"STATION", "9+00"}}});
    const std::string content = read_file(other);
    edit(2);
    type(Station, "1+00");
    fs::rename(other, path);
    solve_and_save();
    EXPECT_EQ(boxes().front(), saved);
    EXPECT_EQ(read_file(path), content);
}

TEST_F(FileFaults, MadeReadOnlyASaveIsWholeAndOfferedAgainAtTheNextOpen) {
    fs::permissions(path, fs::perms::owner_read);
    edit_station(1, "1+00");
    EXPECT_EQ(stations(), "10|1+00\n2|2+00");
}

TEST_F(FileFaults, LockedASaveIsDroppedAndTheNextOneIsStored) {
    sqlite3* other = nullptr;
    sqlite3_open(path.c_str(), &other);
    sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    edit_station(1, "1+00");
    EXPECT_EQ(boxes().front(), saved);
    sqlite3_close(other);
    EXPECT_EQ(stations(), "10|NULL\n2|2+00");
    edit_station(1, "1+00");
    EXPECT_EQ(stations(), "10|1+00\n2|2+00");
}

/// Another program holds the file so that nobody else can even read it.
struct Lock {
    sqlite3* file = nullptr;

    explicit Lock(const std::string& path) {
        sqlite3_open(path.c_str(), &file);
        EXPECT_EQ(sqlite3_exec(file, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    }
    ~Lock() { sqlite3_close(file); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
};

TEST_F(FileFaults, LockedWhileTheWorkspaceOpensNoCommandSaysThatTheProjectHasNoInlets) {
    const Box grid_locked = plain("database is locked - " + path);
    mnuExit_Click();
    {
        const Lock lock(path);
        show_workspace();
        EXPECT_EQ(MDIInlet.Adodc1.record_count(), 0);
        boxes();
        for (const int button : {3, 5}) {
            Toolbar1_ButtonClick(button);
            EXPECT_EQ(boxes(), Boxes{grid_locked}) << button;
        }
        mnuflexdeleteinlet_Click();
        EXPECT_EQ(boxes(), Boxes{grid_locked});
        mnuflexmodifyinlet_Click();
        EXPECT_EQ(boxes(), (Boxes{grid_locked, locked, locked})) << "the last two are those of the refresh";
    }
    mnuflexrefresh_Click();
    EXPECT_EQ(boxes(), Boxes{});
    EXPECT_EQ(MDIInlet.Adodc1.record_count(), 2);
}

TEST_F(FileFaults, AnAddThatCannotBeginItsRowEndsAndTheNextOneBegins) {
    {
        const Lock lock(path);
        mnuflexrefresh_Click();
        boxes();
        mnuAddinlet_Click();
        EXPECT_EQ(boxes(), Boxes{locked});
        EXPECT_EQ(mode(), "VIEW") << "a row that was never begun could not be saved";
        EXPECT_FALSE(frminletMDIC.focused);
    }
    add_curb_inlet("3", "1");
    solve_and_save();
    EXPECT_EQ(boxes(), Boxes{saved});
    EXPECT_EQ(all_numbers(), "10\n2\n3");
}

TEST_F(FileFaults, LockedWhileAPreviousInletIsEnteredItsEmptyListIsToldAndFilledLater) {
    edit(2);
    click_tab(1);
    {
        const Lock lock(path);
        go_to(preinlet1);
        EXPECT_EQ(boxes(), Boxes{locked});
        EXPECT_TRUE(field(preinlet1).entries.empty());
    }
    EXPECT_TRUE(leave_focused_field());
    go_to(preinlet1);
    EXPECT_EQ(boxes(), Boxes{});
    EXPECT_EQ(field(preinlet1).entries, (std::vector<std::string>{"10", "2"}));
}

TEST_F(FileFaults, LockedAtARefreshThePreviousInletIsReadLater) {
    {
        const Lock lock(path);
        mnuflexrefresh_Click();
    }
    boxes();
    add_inlet("3");
    click_tab(1);
    type(preinlet1, "10");
    EXPECT_TRUE(leave_focused_field());
    EXPECT_EQ(boxes(), Boxes{});
    EXPECT_EQ(shown(carryover1), stored("SELECT QCARRY FROM INLET WHERE INLET_NUMBER = '10'"));
}

TEST_F(FileFaults, LockedByAProgramThatWasKilledItOpensAsItWas) {
    testing_support::cut_a_save_short(path);
    ASSERT_TRUE(fs::exists(path + "-journal"));
    edit_station(1, "1+00");
    EXPECT_EQ(stations(), "10|1+00\n2|2+00");
    EXPECT_FALSE(fs::exists(path + "-journal"));
}

TEST_F(FileFaults, TwoProgramsThatSaveDifferentInletsKeepBoth) {
    edit(1);
    type(Station, "1+00");
    stored("UPDATE INLET SET STATION = 'other' WHERE INLET_NUMBER = '2'");
    solve_and_save();
    EXPECT_EQ(stations(), "10|1+00\n2|other");
}

TEST_F(FileFaults, OfTwoProgramsThatSaveOneTextTheFirstIsKeptAndThenShown) {
    edit(1);
    type(Station, "1+00");
    stored("UPDATE INLET SET STATION = 'other' WHERE INLET_NUMBER = '10'");
    solve_and_save();
    EXPECT_EQ(stations(), "10|other\n2|2+00");
    EXPECT_EQ(shown(Station), "other");
    edit_station(1, "1+00");
    EXPECT_EQ(stations(), "10|1+00\n2|2+00");
}

TEST_F(FileFaults, AnInletThatAnotherProgramDeletedIsNotSavedIntoTheOneThatTookItsPlace) {
    edit(2);
    type(RoadWay, "Side Road");
    stored("DELETE FROM INLET WHERE INLET_NUMBER = '2'; INSERT INTO INLET (INLET_NUMBER) VALUES ('3')");
    solve_and_save();
    EXPECT_EQ(stored("SELECT INLET_NUMBER, STATION, ROADWAY FROM INLET WHERE INLET_NUMBER <> '10'"),
              "3|NULL|NULL");
}

}  // namespace
}  // namespace gullymark::editor
