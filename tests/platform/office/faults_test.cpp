#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <functional>

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
        file.path = target;
        use_office(office->settings());
    }
    void TearDown() override {
        use_office({});
        spreadsheet = {};
        outside = {};
        office->end();
    }

    [[nodiscard]] std::string failure_of_opening() const {
        return failure_text([this] { static_cast<void>(spreadsheet.open(file)); });
    }
    [[nodiscard]] std::string failure_of_showing() const {
        return failure_text([this] { spreadsheet.hand_over(file, {.cells = {{{6, 1}, 1.0}}}); });
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
        static_cast<void>(spreadsheet.open(file));
        spreadsheet.hand_over(file, {});
    }
    [[nodiscard]] bool is_closed() const {
        return TestOffice::wait_until([this] { return !std::filesystem::exists(lock); });
    }

    static std::unique_ptr<TestOffice> office;
    std::string target;
    std::string lock;
    SheetFile file;
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
    static_cast<void>(spreadsheet.open(file));
    EXPECT_FALSE(office->processes().empty());
    use_office(office->settings());
    EXPECT_TRUE(has_ended());
    EXPECT_TRUE(is_closed());
}

TEST_F(OfficeFaults, AWorkbookThatIsNotShownIsClosedInTheUsersOffice) {
    let_office_run();
    static_cast<void>(spreadsheet.open(file));
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
    static_cast<void>(spreadsheet.open(file));
    office->send(SIGSTOP);
    EXPECT_EQ(failure_of_showing(), "The spreadsheet program does not answer.");
    EXPECT_TRUE(has_ended());
}

TEST_F(OfficeFaults, AnOfficeKilledBeforeItIsFilledIsAFailureAndTheNextOneWorks) {
    static_cast<void>(spreadsheet.open(file));
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

// Another user's pipe of that name, and one of an office that has gone.
TEST_F(OfficeFaults, APipeThatIsNotAnOfficesOwnIsPassedOver) {
    const std::string name = "/tmp/OSL_PIPE_" + std::to_string(getuid()) + "_gullymark_profile_" +
                             std::to_string(std::hash<std::string>{}(office->path("profile"))) + "_";
    const auto make_pipe = [&](const std::string& path) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        const int pipe = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_EQ(bind(pipe, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0) << path;
        EXPECT_EQ(listen(pipe, 1), 0);
        return pipe;
    };
    const int foreign = make_pipe(name + "foreign");
    const bool is_foreign = lchown((name + "foreign").c_str(), 65534, 65534) == 0;
    close(make_pipe(name + "gone"));
    const timespec long_ago{.tv_sec = 1000000000};
    const std::array<timespec, 2> times{long_ago, long_ago};
    EXPECT_EQ(utimensat(AT_FDCWD, (name + "gone").c_str(), times.data(), AT_SYMLINK_NOFOLLOW), 0);
    if (is_foreign) {
        EXPECT_EQ(failure_of_opening(), "(no failure)");
        EXPECT_EQ(failure_of_showing(), "(no failure)");
        EXPECT_FALSE(std::filesystem::exists(name + "gone"));
    }
    close(foreign);
    std::filesystem::remove(name + "foreign");
    std::filesystem::remove(name + "gone");
}

TEST_F(OfficeFaults, NothingIsShownThatIsNotOpen) {
    EXPECT_EQ(failure_of_showing(), "The workbook is not open.");
}

}  // namespace
}  // namespace gullymark::platform
