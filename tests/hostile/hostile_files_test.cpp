// Each file made to harm opens or is refused in time, in these words, and stays as it is.

#include "hostile/hostile_files.h"

#include <gtest/gtest.h>

#include <ctime>
#include <map>

#include "faults/designer.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace gullymark::hostile {
namespace {

using testing_support::read_file;
using testing_support::run_sql;
using testing_support::TempFolder;

/// The promise is 2 seconds; the checks of a build that looks for faults in the program cost a multiple.
#ifdef __SANITIZE_ADDRESS__
constexpr double most_seconds = 10;
#else
constexpr double most_seconds = 2;
#endif

double processor_seconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

std::vector<HostileFile> all_files() {
    auto files = schema_files();
    for (auto& file : page_files()) {
        files.push_back(std::move(file));
    }
    return files;
}

/// What is in the folder: names and contents, of holes only their sizes.
std::map<std::string, std::string> look_into(const std::string& folder) {
    constexpr std::uintmax_t large = 100'000'000;
    std::map<std::string, std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        contents[entry.path().filename()] =
            entry.file_size() > large ? std::to_string(entry.file_size()) : read_file(entry.path());
    }
    return contents;
}

struct HostileFiles : testing::TestWithParam<HostileFile> {
    TempFolder folder;
    std::string path = folder.path("road.gmk");

    HostileFiles() {
        make_project(path);
        GetParam().spoil(path);
    }

    void expect_told(const faults::Designer& designer) const {
        ASSERT_FALSE(designer.boxes.empty());
        const std::string& told = designer.boxes.front().text;
        switch (GetParam().outcome) {
            case Outcome::refused:
                EXPECT_EQ(told, GetParam().description + " - " + path);
                break;
            case Outcome::damaged:
                EXPECT_EQ(told, "database disk image is malformed: nothing is stored in it");
                break;
            case Outcome::too_long:
                EXPECT_EQ(told,
                          "the file holds a text that is too long for a project: nothing is stored in it");
                break;
            default:
                EXPECT_EQ(told, "Project Name: Mill Road");
        }
    }
};

TEST_P(HostileFiles, OpenOrAreRefusedInTimeAndStayAsTheyAre) {
    const auto before = look_into(folder.path());
    const double began = processor_seconds();
    faults::Designer designer(GULLYMARK_PROGRAM_FOLDER);
    designer.open(path);
    constexpr int few = 100;
    if (faults::Designer::rows() <= few) {
        designer.look_at_every_row();
    }
    const double used = processor_seconds() - began;
    expect_told(designer);
    EXPECT_LT(used, most_seconds);
    designer.close();
    EXPECT_TRUE(look_into(folder.path()) == before) << "something was written, made or deleted";
    RecordProperty("milliseconds", static_cast<int>(used * 1000));
}

INSTANTIATE_TEST_SUITE_P(All, HostileFiles, testing::ValuesIn(all_files()),
                         [](const auto& file) { return std::string(file.param.name); });

TEST(HostileFilesTest, AreAtLeastSixty) {
    EXPECT_GE(all_files().size(), 60U);
}

}  // namespace
}  // namespace gullymark::hostile
