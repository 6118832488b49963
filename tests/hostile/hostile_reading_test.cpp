// Each file made to harm is read or refused in time by who only reads, and stays as it is.

#include <gtest/gtest.h>

#include <ctime>
#include <map>

#include "hostile/hostile_files.h"
#include "platform/failure.h"
#include "review/findings.h"
#include "review/fresh_road.h"
#include "review/read_project.h"
#include "support/outside_double.h"

namespace gullymark::hostile {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr double most_seconds_to_read = 10;
#else
constexpr double most_seconds_to_read = 2;
#endif

double seconds_of_the_processor() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

std::map<std::string, std::string> what_lies_in(const std::string& folder) {
    constexpr std::uintmax_t large = 100'000'000;
    std::map<std::string, std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        contents[entry.path().filename()] =
            std::to_string(entry.last_write_time().time_since_epoch().count()) + " " +
            (entry.file_size() > large ? std::to_string(entry.file_size())
                                       : testing_support::read_file(entry.path()));
    }
    return contents;
}

/// "" for a file that is read into `project`.
std::string refusal_of(const std::string& path, review::Project& project) {
    try {
        project = review::read_project(path);
        return "";
    } catch (const platform::Failure& failure) {
        return failure.what();
    }
}

/// Whatever was read; 50,000 inlets without a text differ in nothing from one, and take the checked build half a minute.
void expect_judged(const review::Project& project) {
    constexpr std::size_t many = 1000;
    if (project.inlets.size() < many) {
        static_cast<void>(review::judge(project, {}));
        static_cast<void>(review::make_fresh_road(project));
    }
}

void expect_read_or_refused(const HostileFile& file) {
    SCOPED_TRACE(std::string(file.name));
    const testing_support::TempFolder folder;
    const std::string path = folder.path("road.gmk");
    make_project(path);
    file.spoil(path);
    const auto before = what_lies_in(folder.path());
    const double began = seconds_of_the_processor();
    review::Project project;
    const auto refusal = refusal_of(path, project);
    EXPECT_LT(seconds_of_the_processor() - began, most_seconds_to_read);
    expect_judged(project);
    EXPECT_TRUE(what_lies_in(folder.path()) == before) << "something was written, made or deleted";
    if (file.outcome == Outcome::too_long || file.name == "text_of_3_megabytes") {
        EXPECT_EQ(refusal, "the file holds a text that is too long for a project - " + path);
    } else if (file.outcome == Outcome::opens || file.name == "writing_of_tomorrow") {
        EXPECT_EQ(refusal, "");
    } else if (file.outcome == Outcome::refused) {
        EXPECT_EQ(refusal, file.description + " - " + path);
    } else {
        EXPECT_EQ(refusal, "database disk image is malformed - " + path);
    }
}

TEST(HostileReadingTest, FilesWithAForeignSchemaAreReadOrRefused) {
    for (const auto& file : schema_files()) {
        expect_read_or_refused(file);
    }
}

TEST(HostileReadingTest, FilesWithSpoiledPagesAreReadOrRefused) {
    for (const auto& file : page_files()) {
        expect_read_or_refused(file);
    }
}

}  // namespace
}  // namespace gullymark::hostile
