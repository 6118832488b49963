#pragma once

#include <unistd.h>
#include <algorithm>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "platform/spreadsheet_office.h"

namespace gullymark::testing_support {

/// An office of the test's own, without windows, with a profile in a folder that goes with it. The user's office is not
/// touched. It starts when the first workbook is opened.
class TestOffice {
  public:
    explicit TestOffice(std::string helper) : helper_(std::move(helper)) {
        std::string name = (std::filesystem::temp_directory_path() / "gullymark_office_XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no folder for the office");
        }
        folder_ = name;
    }
    ~TestOffice() {
        end();
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    TestOffice(const TestOffice&) = delete;
    TestOffice& operator=(const TestOffice&) = delete;

    /// The full path of a file of this test.
    [[nodiscard]] std::string path(const std::string& name) const { return folder_ / name; }

    /// What `use_office` needs to talk to this office. After a workbook was shown it is saved as `copy`, if one is
    /// given, and closed.
    [[nodiscard]] platform::OfficeSettings settings(const std::string& copy = {}) const {
        platform::OfficeSettings settings{.program = helper_,
                                          .first_questions = {{"profile", path("profile")}, {"headless"}}};
        if (!copy.empty()) {
            settings.last_questions.push_back({"save", copy});
        }
        settings.last_questions.push_back({"close"});
        return settings;
    }

    /// Makes .xls workbooks of the same names from Flat ODS files; they lie where `path` tells.
    void convert(const std::vector<std::string>& sources) const {
        std::string command = "TZ=UTC LC_ALL=C.UTF-8 soffice -env:UserInstallation=file://" +
                              path("profile") + " --headless --convert-to xls --outdir " + folder_.string();
        for (const std::string& source : sources) {
            command += " " + source;
        }
        command += " >/dev/null 2>&1";
        if (!run(command)) {
            throw std::runtime_error("the office cannot convert workbooks");
        }
    }

    /// Starts it without the program's knowledge, with nothing open; it may not be quite up yet.
    void start_as_the_user_does() const {
        const std::string command = "soffice -env:UserInstallation=file://" + path("profile") +
                                    " --headless --nologo --nodefault >/dev/null 2>&1 &";
        const std::string ready = path("profile/user");
        if (!run(command) ||
            !wait_until([&] { return !processes().empty() && std::filesystem::exists(ready); })) {
            throw std::runtime_error("the office does not start");
        }
    }

    /// The processes of this office.
    [[nodiscard]] std::vector<pid_t> processes() const {
        std::vector<pid_t> found;
        for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
            const std::string name = entry.path().filename();
            if (name.find_first_not_of("0123456789") != std::string::npos) {
                continue;
            }
            std::ifstream file(entry.path() / "cmdline");
            std::string command;
            std::getline(file, command);  // a process that has just ended makes it fail, and is none of them
            if (command.find("UserInstallation=file://" + path("profile")) != std::string::npos) {
                found.push_back(std::stoi(name));
            }
        }
        return found;
    }

    void send(int signal) const {
        for (const pid_t process : processes()) {
            ::kill(process, signal);
        }
    }

    /// Ends it on the spot and waits until it has gone.
    void end() const {
        const auto ending = processes();
        send(SIGKILL);
        wait_until([&] { return processes().empty() && std::ranges::all_of(ending, has_gone); });
    }

    /// True as soon as it holds, false when it does not within some seconds.
    static bool wait_until(const std::function<bool()>& holds) {
        const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(15);
        while (!holds()) {
            if (std::chrono::steady_clock::now() > until) {
                return false;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        return true;
    }

  private:
    /// A process that is killed loses its command line before it closes what others can still connect to.
    static bool has_gone(pid_t process) {
        std::ifstream file("/proc/" + std::to_string(process) + "/stat");
        std::string stat;
        std::getline(file, stat);
        const auto name_end = stat.rfind(')');
        return name_end == std::string::npos || stat.substr(name_end + 2, 1) == "Z";
    }

    /// A line for the shell, all of which is the test's own.
    static bool run(const std::string& command) {
        return std::system(command.c_str()) == 0;  // NOLINT(cert-env33-c)
    }

    std::string helper_;
    std::filesystem::path folder_;
};

}  // namespace gullymark::testing_support
