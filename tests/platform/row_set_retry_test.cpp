// A save that fails although it took effect, and is tried again.

#include <dirent.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>

#include "row_set_test.h"
#include "support/child_process.h"

namespace gullymark::row_set_test {
namespace {

int calls_to_fail = 0;

/// The journal is gone, so the save has taken effect; the call fails all the same.
int unlink_and_fail(const char* path) {
    const int result = unlink(path);
    if (calls_to_fail == 0) {
        return result;
    }
    --calls_to_fail;
    errno = EIO;
    return -1;
}

/// While it lives, the removals of journals can be made to fail after they happened.
struct FailingRemovals {
    FailingRemovals() { replace(reinterpret_cast<sqlite3_syscall_ptr>(unlink_and_fail)); }
    ~FailingRemovals() {
        calls_to_fail = 0;
        replace(nullptr);
    }
    FailingRemovals(const FailingRemovals&) = delete;
    FailingRemovals& operator=(const FailingRemovals&) = delete;

  private:
    static void replace(sqlite3_syscall_ptr call) {
        sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
        system->xSetSystemCall(system, "unlink", call);
    }
};

struct RetryTest : RowSetTest {
    FailingRemovals removals;

    void save_in_vain(RowSet& rows, const Row& values, int times = 1) const {
        for (int i = 0; i < times; ++i) {
            calls_to_fail = 1;
            EXPECT_EQ(failure_text([&] { rows.save(values); }), "disk I/O error");
            ASSERT_EQ(calls_to_fail, 0);
        }
    }
};

TEST_F(RetryTest, ANewRowThatWasStoredAfterAllIsNotStoredTwice) {
    for (const int failures : {1, 3}) {
        const std::string number = std::to_string(100 + failures);
        inlets.add_new();
        save_in_vain(inlets, {number, "first", std::nullopt, ""}, failures);
        EXPECT_TRUE(inlets.adding());
        EXPECT_EQ(query("SELECT count(*) FROM INLET WHERE INLET_NUMBER = '" + number + "'"), "1")
            << "the failure was to come after the row was stored";
        inlets.save({number, "second", std::nullopt, ""});
        EXPECT_EQ(query("SELECT * FROM INLET WHERE INLET_NUMBER = '" + number + "'"),
                  number + "|second|NULL|");
        EXPECT_EQ(inlets.value("STATION"), "second");
        inlets.requery();
    }
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"1", "10", "101", "103", "2"}));
}

TEST_F(RetryTest, TheDetailsOfAProjectAreOneRowHoweverOftenTheirSaveIsTried) {
    RowSet projects;
    projects.open(connection, "SELECT * from PROJECT Order by PROJECT_ID");
    projects.add_new();
    save_in_vain(projects, {"P1", std::nullopt, "ENGLISH"});
    save_in_vain(projects, {"P1", std::nullopt, "ENGLISH"});
    save_in_vain(projects, {"P2", std::nullopt, "ENGLISH"});
    projects.save({"P2", std::nullopt, "ENGLISH"});
    EXPECT_EQ(query("SELECT * FROM PROJECT"), "P2|GULLYMARKAL|ENGLISH");
}

TEST_F(RetryTest, ASaveOverARowFindsWhatItsFirstTryStored) {
    inlets.find("INLET_NUMBER = '10'");
    save_in_vain(inlets, {"10", "first", "", "1"});
    EXPECT_EQ(query("SELECT STATION FROM INLET WHERE INLET_NUMBER = '10'"), "first");
    save_in_vain(inlets, {"11", "second", "x", "1"});
    inlets.save({"10", "third", "", "1"});
    EXPECT_EQ(query("SELECT * FROM INLET WHERE STATION = 'third'"), "10|third||1");
    save_in_vain(inlets, {"10", "fourth", "", "1"});
    inlets.save({"10", "third", "", "1"});
    EXPECT_EQ(query("SELECT * FROM INLET WHERE INLET_NUMBER = '10'"), "10|third||1")
        << "given up after the failure";
}

TEST_F(RetryTest, ASaveThatTookNoEffectIsTriedAgainLikeAFirst) {
    inlets.add_new();
    sqlite3* other = nullptr;
    sqlite3_open(path.c_str(), &other);
    sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    EXPECT_EQ(failure_text([&] { inlets.save({"3", "", "", ""}); }), "database is locked");
    sqlite3_exec(other, "INSERT INTO INLET (INLET_NUMBER) VALUES ('4'); COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    inlets.save({"3", "", "", ""});
    EXPECT_EQ(query("SELECT group_concat(INLET_NUMBER) FROM INLET"), "2,10,1,4,3");
}

TEST_F(RetryTest, AnotherProgramsRowUnderTheKeyOfAFailedOneIsLeftAlone) {
    inlets.add_new();
    save_in_vain(inlets, {"3", "mine", "", ""});
    run_sql(path, "UPDATE INLET SET INLET_NUMBER = '4', STATION = 'theirs' WHERE INLET_NUMBER = '3'");
    inlets.save({"3", "mine", "", ""});
    EXPECT_EQ(query("SELECT group_concat(INLET_NUMBER || STATION) FROM INLET WHERE INLET_NUMBER > '2'"),
              "4theirs,3mine");
}

TEST_F(RetryTest, ARequeryShowsWhatAFailedSaveStored) {
    inlets.add_new();
    save_in_vain(inlets, {"3", "", "", ""});
    inlets.requery();
    EXPECT_EQ(inlets.all_values("INLET_NUMBER"), (Row{"1", "10", "2", "3"}));
}

}  // namespace
}  // namespace gullymark::row_set_test
