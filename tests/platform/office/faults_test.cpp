#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/spreadsheet.h"
#include "support/failure_text.h"
#include "support/test_office.h"

/// What may go wrong with a real office: nothing hangs, and nothing stays behind that the user does not see.
namespace gullymark::platform {
namespace {

using testing_support::failure_text;
using testing_support::TestOffice;
using namespace std::chrono_literals;

class OfficeFaults : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        office = std::make_unique<TestOffice>(GULLYMARK_OFFICE);
        office->convert({GULLYMARK_TEST_DIR "/platform/office/template.fods"});
    }
    static void TearDownTestSuite() { office.reset(); }

    void SetUp() override {
        target = office->path("target.xlr");
        lock = office->path(".~lock.target.xlr#");
        copy_file(office->path("template.xls"), target);
        use_office(office->settings());
    }
    void TearDown() override {
        use_office({});
        spreadsheet = {};
        outside = {};
        office->end();
    }

    [[nodiscard]] std::string failure_of_opening() const {
        return failure_text([this] { static_cast<void>(spreadsheet.open(target, SheetChoice::first)); });
    }
    [[nodiscard]] std::string failure_of_showing() const {
        return failure_text([this] { spreadsheet.hand_over(target, SheetChoice::first, {{{6, 1}, 1.0}}); });
    }
    static bool has_ended() {
        return TestOffice::wait_until([] { return office->processes().empty(); });
    }
    static void set_limit(std::chrono::milliseconds limit) {
        OfficeSettings settings = office->settings();
        settings.limit = limit;
        use_office(settings);
    }
    // An office that runs, with nothing open, as if the user had started it.
    void let_office_run() const {
        static_cast<void>(spreadsheet.open(target, SheetChoice::first));
        spreadsheet.hand_over(target, SheetChoice::first, {});
    }
    [[nodiscard]] bool is_closed() const {
        return TestOffice::wait_until([this] { return !std::filesystem::exists(lock); });
    }

    static std::unique_ptr<TestOffice> office;
    std::string target;
    std::string lock;
};

std::unique_ptr<TestOffice> OfficeFaults::office;

TEST_F(OfficeFaults, WithoutTheWorkbookNoOfficeIsStarted) {
    std::filesystem::remove(target);
    EXPECT_EQ(failure_of_opening(), "There is no file " + target + ".");
    EXPECT_TRUE(office->processes().empty());
}

TEST_F(OfficeFaults, AFileThatIsNoWorkbookEndsTheOfficeThatWasStartedForIt) {
    std::ofstream(target) << "no workbook";
    EXPECT_NE(failure_of_opening(), "(no failure)");
    EXPECT_TRUE(has_ended());
}

TEST_F(OfficeFaults, AWorkbookThatIsNotShownIsClosedAndTheOfficeEnds) {
    static_cast<void>(spreadsheet.open(target, SheetChoice::first));
    EXPECT_FALSE(office->processes().empty());
    use_office(office->settings());
    EXPECT_TRUE(has_ended());
    EXPECT_TRUE(is_closed());
}

TEST_F(OfficeFaults, AWorkbookThatIsNotShownIsClosedInTheUsersOffice) {
    let_office_run();
    static_cast<void>(spreadsheet.open(target, SheetChoice::first));
    EXPECT_TRUE(std::filesystem::exists(lock));
    use_office(office->settings());
    EXPECT_TRUE(is_closed());
    EXPECT_FALSE(office->processes().empty());
}

TEST_F(OfficeFaults, AnOfficeThatTheUserStartedTakesTheWorkbookAndStays) {
    office->start_as_the_user_does();
    EXPECT_EQ(failure_of_opening(), "(no failure)");
    EXPECT_EQ(failure_of_showing(), "(no failure)");
    EXPECT_EQ(failure_of_opening(), "(no failure)");
    use_office(office->settings());
    EXPECT_TRUE(is_closed());
    EXPECT_FALSE(office->processes().empty());
}

TEST_F(OfficeFaults, AnOfficeThatStartsAndDoesNotAnswerIsEnded) {
    set_limit(2s);
    outside.keep_painting = [] { office->send(SIGSTOP); };
    EXPECT_EQ(failure_of_opening(), "The spreadsheet program does not answer.");
    EXPECT_TRUE(has_ended());
}

TEST_F(OfficeFaults, TheUsersOfficeThatDoesNotAnswerKeepsNothingOpenWhenItAnswersAgain) {
    let_office_run();
    set_limit(500ms);
    office->send(SIGSTOP);
    EXPECT_EQ(failure_of_opening(), "The spreadsheet program does not answer.");
    office->send(SIGCONT);
    std::this_thread::sleep_for(500ms);
    EXPECT_TRUE(is_closed());
    set_limit(10s);
    EXPECT_EQ(failure_of_opening(), "(no failure)");
}

TEST_F(OfficeFaults, AnOfficeThatStopsWhileItIsFilledIsAFailure) {
    set_limit(8s);
    static_cast<void>(spreadsheet.open(target, SheetChoice::first));
    office->send(SIGSTOP);
    EXPECT_EQ(failure_of_showing(), "The spreadsheet program does not answer.");
    EXPECT_TRUE(has_ended());
}

TEST_F(OfficeFaults, AnOfficeKilledBeforeItIsFilledIsAFailureAndTheNextOneWorks) {
    static_cast<void>(spreadsheet.open(target, SheetChoice::first));
    office->end();
    EXPECT_NE(failure_of_showing(), "(no failure)");
    EXPECT_EQ(failure_of_opening(), "(no failure)");
    EXPECT_EQ(failure_of_showing(), "(no failure)");
}

TEST_F(OfficeFaults, AnOfficeKilledWhileItStartsIsAFailure) {
    outside.keep_painting = [] { office->send(SIGKILL); };
    EXPECT_NE(failure_of_opening(), "(no failure)");
    EXPECT_TRUE(has_ended());
}

TEST_F(OfficeFaults, AWorkbookThatSomeoneElseHasOpenIsFilledAllTheSame) {
    std::ofstream(lock) << ",Someone,elsewhere,20.11.2025 10:00,file:///elsewhere;";
    EXPECT_EQ(failure_of_opening(), "(no failure)");
    EXPECT_EQ(failure_of_showing(), "(no failure)");
}

TEST_F(OfficeFaults, NothingIsShownThatIsNotOpen) {
    EXPECT_EQ(failure_of_showing(), "The workbook is not open.");
}

}  // namespace
}  // namespace gullymark::platform
