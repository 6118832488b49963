// When a file is read again, and when it is left alone.

#include "shell/review/file_follower.h"

#include <gtest/gtest.h>
#include <QProgressDialog>
#include <QPushButton>

#include <filesystem>
#include <fstream>

#include "shell/review/long_work.h"
#include "shell/robot.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using Outcome = FileFollower::Outcome;

struct FileFollowerTest : testing::Test {
    TempFolder folder;
    std::string path = folder.path("file");
    FileFollower follower;
    Outcome outcome = Outcome::read;
    std::vector<bool> reads;  // lasting or not
    int recovered = 0;

    FileFollowerTest() {
        write("one");
        follower.read = [this](bool lasting) {
            reads.push_back(lasting);
            return outcome;
        };
        follower.recovered = [this] { ++recovered; };
        follower.follow(path, FileFollower::look_at(path));
    }
    void write(const std::string& text) const { std::ofstream(path, std::ios::trunc) << text; }
    [[nodiscard]] bool comes_to(std::size_t count, int milliseconds = 1000) const {
        return QTest::qWaitFor([&] { return reads.size() >= count; }, milliseconds);
    }
};

TEST_F(FileFollowerTest, AFileThatStaysIsNotReadAgain) {
    QTest::qWait(700);
    EXPECT_TRUE(reads.empty());
}

TEST_F(FileFollowerTest, EachChangeIsReadOnce) {
    write("two");
    ASSERT_TRUE(comes_to(1));
    QTest::qWait(700);
    EXPECT_EQ(reads.size(), 1U);
    write("three");
    EXPECT_TRUE(comes_to(2));
}

TEST_F(FileFollowerTest, WhatFailsIsTriedAgainAndTellsThatItLasts) {
    outcome = Outcome::failed;
    write("two");
    ASSERT_TRUE(comes_to(2, 2000));
    EXPECT_FALSE(reads[0]);
    EXPECT_TRUE(reads[1]);
    outcome = Outcome::read;
    ASSERT_TRUE(comes_to(3, 3000));
    const auto count = reads.size();
    QTest::qWait(700);
    EXPECT_EQ(reads.size(), count);
}

TEST_F(FileFollowerTest, AFileThatComesBackAsItWasIsNotReadAgain) {
    outcome = Outcome::failed;
    std::filesystem::rename(path, path + ".away");
    ASSERT_TRUE(comes_to(1));
    std::filesystem::rename(path + ".away", path);
    const auto count = reads.size();
    EXPECT_TRUE(QTest::qWaitFor([this] { return recovered == 1; }, 1000));
    EXPECT_EQ(reads.size(), count);
}

TEST_F(FileFollowerTest, WhatTheUserGaveUpIsLeftUntilTheFileChangesAgain) {
    outcome = Outcome::given_up;
    write("two");
    ASSERT_TRUE(comes_to(1));
    QTest::qWait(1500);
    EXPECT_EQ(reads.size(), 1U);
    write("three");
    EXPECT_TRUE(comes_to(2));
    follower.read_now();
    EXPECT_EQ(reads.size(), 3U);
}

TEST_F(FileFollowerTest, ALinkIsFollowedToItsEnd) {
    const std::string link = folder.path("link");
    std::filesystem::create_symlink(path, link);
    follower.follow(link, FileFollower::look_at(link));
    write("two");
    EXPECT_TRUE(comes_to(1));
}

QProgressDialog* progress() {
    return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
}

TEST(LongWork, WhatIsSoonDoneShowsNothing) {
    QWidget window;
    LongWork work(&window, "Checking");
    for (std::size_t i = 0; i < 100; ++i) {
        EXPECT_TRUE(work.go_on(i, 100));
    }
    EXPECT_EQ(progress(), nullptr);
}

TEST(LongWork, AfterHalfASecondItTellsHowFarItIsAndCanBeEnded) {
    QWidget window;
    activate(window);
    {
        LongWork work(&window, "Checking road.gmk");
        QTest::qSleep(450);
        EXPECT_TRUE(work.go_on(1, 10));
        EXPECT_EQ(progress(), nullptr);
        QTest::qSleep(100);
        EXPECT_TRUE(work.go_on(5, 10));
        ASSERT_NE(progress(), nullptr);
        EXPECT_EQ(progress()->labelText(), "Checking road.gmk");
        EXPECT_EQ(progress()->value() * 2, progress()->maximum());
        progress()->findChild<QPushButton*>()->click();
        QTest::qSleep(60);
        EXPECT_FALSE(work.go_on(6, 10));
        EXPECT_FALSE(work.go_on(7, 10));
    }
    EXPECT_EQ(progress(), nullptr);
}

}  // namespace
}  // namespace gullymark::shell
