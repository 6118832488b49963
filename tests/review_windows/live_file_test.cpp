// The reviewer's window while the designer saves, and while the file is away, half there or locked.

#include <filesystem>
#include <fstream>

#include <QHeaderView>
#include <QProcess>
#include <QScrollBar>

#include "review_windows/review_stage.h"
#include "support/sqlite_file.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using engine::Column;
using testing::HasSubstr;

class LiveFileTest : public ReviewStage {
  protected:
    [[nodiscard]] bool shows(std::size_t count) const {
        return title().find(" - " + std::to_string(count) + " finding") != std::string::npos;
    }
    /// Each of these inlets alone is beyond its allowable spread.
    void narrow(std::initializer_list<std::size_t> inlets, const std::string& file) {
        for (const std::size_t inlet : inlets) {
            change(inlet, {{Column::ALLOWABLE_SPREAD, "3.0"}});
            solve(inlet);
        }
        save_in(file);
    }
    void narrow(std::initializer_list<std::size_t> inlets) { narrow(inlets, path); }
    [[nodiscard]] std::size_t count() const { return judge(project, limits).size(); }
};

TEST_F(LiveFileTest, WhatTheDesignerSavesShowsWithinASecond) {
    open();
    ASSERT_TRUE(shows(0));
    narrow({1});
    EXPECT_TRUE(comes([this] { return shows(count()); })) << title();
    narrow({2, 3});
    EXPECT_TRUE(comes([this] { return shows(count()); })) << title();
}

TEST_F(LiveFileTest, AFileThatIsPutInItsPlaceIsFollowedToo) {
    open();
    for (int round = 1; round <= 3; ++round) {
        const std::string other = folder.path("new");
        std::filesystem::copy_file(path, other);
        narrow({static_cast<std::size_t>(round)}, other);
        std::filesystem::rename(other, path);
        EXPECT_TRUE(comes([this] { return shows(count()); })) << round << title();
    }
}

TEST_F(LiveFileTest, TheInletTheSortTheFilterAndThePlaceStay) {
    narrow({0, 1, 2, 3, 4, 5, 6, 7, 8});
    open();
    window->resize(1000, 480);
    settle();
    auto* header = findings().horizontalHeader();
    window->findChild<QAction*>("along_road")->trigger();
    press(*window, Qt::Key_F, Qt::ControlModifier);
    type(*window, "spread");
    findings().setCurrentIndex(findings().model()->index(6, 0));
    findings().verticalScrollBar()->setValue(findings().verticalScrollBar()->maximum() / 2);
    const auto inlet = text("inlet_title");
    const int top = findings().rowViewportPosition(findings().currentIndex().row());
    // The first inlet is mended: all rows move up.
    change(0, {{Column::ALLOWABLE_SPREAD, "12.0"}});
    solve(0);
    save();
    ASSERT_TRUE(comes([this] { return shows(count()); }));
    EXPECT_EQ(text("inlet_title"), inlet);
    EXPECT_EQ(findings().currentIndex().row(), 5);
    EXPECT_EQ(findings().rowViewportPosition(5), top);
    EXPECT_EQ(find<QLineEdit>("filter").text(), "spread");
    EXPECT_EQ(header->sortIndicatorSection(), 1);
}

TEST_F(LiveFileTest, AnInletIsFoundByItsNumberWhenTheOrderChanges) {
    open();
    for (int i = 0; i < 3; ++i) {
        press(*window, Qt::Key_Right, Qt::AltModifier);
    }
    ASSERT_EQ(text("inlet_title"), "Inlet L4: Curb Inlet, CONTINUOUS GRADE");
    const auto first = project.inlets.front();
    project.inlets.erase(project.inlets.begin());
    project.inlets.push_back(first);
    change(0, {{Column::ALLOWABLE_SPREAD, "3.0"}});
    save();
    ASSERT_TRUE(comes([this] { return !shows(0); }));
    EXPECT_EQ(text("inlet_title"), "Inlet L4: Curb Inlet, CONTINUOUS GRADE");
}

TEST_F(LiveFileTest, AFileThatVanishesIsToldAndWhatWasReadStays) {
    open();
    const std::string away = folder.path("away");
    std::filesystem::rename(path, away);
    ASSERT_TRUE(comes([this] { return !text("warning").empty(); }, 3000));
    EXPECT_THAT(text("warning"),
                HasSubstr("The file cannot be read right now, this is the project as it was read at "));
    EXPECT_THAT(text("warning"), HasSubstr("unable to open database file - " + path));
    EXPECT_EQ(text("counts"), "0 findings on 10 inlets: 0 wrong, 0 beyond, 0 doubtful");
    std::filesystem::rename(away, path);
    EXPECT_TRUE(comes([this] { return text("warning").empty(); }));
    narrow({1});
    EXPECT_TRUE(comes([this] { return shows(count()); })) << title();
}

TEST_F(LiveFileTest, AFileThatIsHalfWrittenIsReadWhenItIsWhole) {
    open();
    const std::string whole = folder.path("whole");
    std::filesystem::copy_file(path, whole);
    narrow({1}, whole);
    const std::string bytes = read_file(whole);
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes.substr(0, bytes.size() / 3);
    ASSERT_TRUE(comes([this] { return !text("warning").empty(); }, 3000));
    EXPECT_TRUE(shows(0));
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    EXPECT_TRUE(comes([this] { return shows(count()) && text("warning").empty(); }, 2000)) << title();
}

TEST_F(LiveFileTest, ALockedFileIsReadWhenItIsFree) {
    open();
    // The designer's program stands still in the middle of a save.
    QProcess designer;
    designer.start("sqlite3", {QString::fromStdString(path)});
    change(1, {{Column::ALLOWABLE_SPREAD, "3.0"}});
    std::string sql = save_statements();
    sql.replace(0, std::string("BEGIN;").size(), "PRAGMA cache_size = 1; BEGIN EXCLUSIVE;");
    sql.resize(sql.size() - std::string("COMMIT;").size());
    designer.write((sql + "SELECT 'held';\n").c_str());
    ASSERT_TRUE(designer.waitForReadyRead());
    EXPECT_TRUE(comes([this] { return !text("warning").empty(); }, 4000));
    EXPECT_THAT(text("warning"), HasSubstr("database is locked"));
    EXPECT_TRUE(shows(0));
    designer.write("COMMIT;\n");
    designer.closeWriteChannel();
    EXPECT_TRUE(comes([this] { return shows(count()) && text("warning").empty(); }, 2000))
        << title() << text("warning");
    ASSERT_TRUE(designer.state() == QProcess::NotRunning || designer.waitForFinished());
}

TEST_F(LiveFileTest, ARefreshWaitsWhileABoxIsOpen) {
    open();
    Robot robot;
    bool seen = false;
    robot.look_at = [&](QWidget&) {
        narrow({1});
        QTest::qWait(800);
        seen = true;
        EXPECT_TRUE(shows(0));
    };
    window->findChild<QAction*>("about")->trigger();
    ASSERT_TRUE(seen);
    EXPECT_TRUE(comes([this] { return shows(count()); })) << title();
}

TEST_F(LiveFileTest, NothingIsWrittenAndNothingIsMade) {
    const auto look = [this] {
        std::string all = read_file(path);
        for (const auto& entry : std::filesystem::directory_iterator(folder.path(""))) {
            all += entry.path().string();
        }
        return all;
    };
    const std::string before = look();
    const auto time = std::filesystem::last_write_time(path);
    open();
    press(*window, Qt::Key_F5);
    press(*window, Qt::Key_Right, Qt::AltModifier);
    QTest::qWait(700);
    EXPECT_EQ(look(), before);
    EXPECT_EQ(std::filesystem::last_write_time(path), time);
}

}  // namespace
}  // namespace gullymark::shell
