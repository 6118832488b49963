#include "platform/file_dialog.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/failure.h"
#include "support/outside_double.h"

namespace gullymark::platform {
namespace {

using testing_support::OutsideDouble;
using testing_support::TempFolder;

constexpr const char* filter = "Gullymark files (*.gmk)|*.gmk";

TEST(FileDialog, TheFolderOfThePathChosenBecomesTheCurrentFolder) {
    OutsideDouble user;
    const TempFolder folder;
    user.choices = {folder.path("a.gmk")};
    printDlg.show_open();
    EXPECT_EQ(printDlg.file_name, folder.path("a.gmk"));
    EXPECT_EQ(current_folder(), folder.path());
}

TEST(FileDialog, AFolderReachedByALinkIsToldAsTheFolderBehindIt) {
    OutsideDouble user;
    const TempFolder folder;
    std::filesystem::create_directory(folder.path("behind the link"));
    std::filesystem::create_directory_symlink(folder.path("behind the link"), folder.path("l"));
    user.choices = {folder.path("l/a.gmk")};
    printDlg.show_open();
    EXPECT_EQ(printDlg.file_name, folder.path("behind the link/a.gmk"));
    EXPECT_EQ(current_folder(), folder.path("behind the link"));
}

TEST(FileDialog, AFolderThatIsNotThereIsAFailureAndTheFileNameStays) {
    OutsideDouble user;
    const TempFolder folder;
    user.choices = {folder.path("missing/a.gmk")};
    EXPECT_THROW(printDlg.show_open(), Failure);
    EXPECT_EQ(printDlg.file_name, "");
}

TEST(FileDialog, ANameTypedForSavingWithoutAnExtensionTakesTheOneOfTheFilter) {
    OutsideDouble user;
    const TempFolder folder;
    printDlg.filter = filter;
    user.choices = {folder.path("a"), folder.path("b.gmk"), folder.path("c.txt")};
    printDlg.show_save();
    EXPECT_EQ(printDlg.file_name, folder.path("a.gmk"));
    printDlg.show_save();
    EXPECT_EQ(printDlg.file_name, folder.path("b.gmk"));
    printDlg.show_save();
    EXPECT_EQ(printDlg.file_name, folder.path("c.txt"));
}

TEST(FileDialog, APointWithinANameTypedForSavingIsNoExtension) {
    OutsideDouble user;
    const TempFolder folder;
    printDlg.filter = filter;
    for (const char* name : {"Route 5.2", "Sta 12+50.00", "Main St. east", "a.", "a.gmk2010"}) {
        user.choices = {folder.path(name)};
        printDlg.show_save();
        EXPECT_EQ(printDlg.file_name, folder.path(name) + ".gmk");
    }
}

TEST(FileDialog, TheBareFilterTypedAsANameForSavingChoosesNothing) {
    OutsideDouble user;
    const TempFolder folder;
    printDlg.filter = filter;
    user.choices = {folder.path("*.gmk")};
    printDlg.show_save();
    EXPECT_EQ(printDlg.file_name, "*.gmk");
}

TEST(FileDialog, ACancelLeavesTheFileNameUnlessItIsAnError) {
    const OutsideDouble user;
    printDlg.file_name = "before.gmk";
    printDlg.show_save();
    EXPECT_EQ(printDlg.file_name, "before.gmk");
    printDlg.cancel_is_error = true;
    try {
        printDlg.show_save();
        FAIL() << "a cancel that is an error was no failure";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(), "Cancel was selected.");
    }
    EXPECT_EQ(printDlg.file_name, "before.gmk");
}

TEST(FileDialog, OnlyOpeningAsksForAFileThatExists) {
    OutsideDouble user;
    printDlg.must_exist = true;
    printDlg.show_open();
    printDlg.show_save();
    ASSERT_EQ(user.requests.size(), 2U);
    EXPECT_TRUE(user.requests[0].must_exist);
    EXPECT_FALSE(user.requests[0].saving);
    EXPECT_FALSE(user.requests[1].must_exist);
    EXPECT_TRUE(user.requests[1].saving);
}

}  // namespace
}  // namespace gullymark::platform
