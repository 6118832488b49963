#pragma once

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/outside.h"

namespace gullymark::platform {

/// How a failed expectation shows a box.
inline void PrintTo(const Box& box, std::ostream* out) {
    *out << "box of kind " << static_cast<int>(box.kind) << " titled \"" << box.title << "\": \"" << box.text
         << '"';
}

}  // namespace gullymark::platform

namespace gullymark::testing_support {

/// Stands in for user and desktop while it lives: records what was asked and answers from its queues.
/// A question with no answer queued is answered No, a file dialog with no choice queued is canceled.
struct OutsideDouble {
    std::vector<platform::Box> boxes;
    std::deque<platform::Answer> answers;
    std::vector<platform::FileDialogRequest> requests;
    std::deque<std::optional<std::string>> choices;
    std::vector<std::string> help_paths;
    std::vector<bool> wait_pointers;
    int beeps = 0;

    OutsideDouble() {
        platform::printDlg = {};
        platform::outside = {};
        platform::outside.show_box = [this](const platform::Box& box) { return answer(box); };
        platform::outside.choose_file = [this](const platform::FileDialogRequest& request) {
            requests.push_back(request);
            return next_choice();
        };
        platform::outside.open_help = [this](const std::string& path) { help_paths.push_back(path); };
        platform::outside.show_wait_pointer = [this](bool waiting) { wait_pointers.push_back(waiting); };
        platform::outside.beep = [this] { ++beeps; };
    }
    ~OutsideDouble() {
        platform::outside = {};
        platform::printDlg = {};
    }
    OutsideDouble(const OutsideDouble&) = delete;
    OutsideDouble& operator=(const OutsideDouble&) = delete;

  private:
    platform::Answer answer(const platform::Box& box) {
        boxes.push_back(box);
        const bool question = box.kind == platform::BoxKind::warning_question ||
                              box.kind == platform::BoxKind::information_question;
        if (!question) {
            return platform::Answer::ok;
        }
        if (answers.empty()) {
            return platform::Answer::no;
        }
        const platform::Answer next = answers.front();
        answers.pop_front();
        return next;
    }
    std::optional<std::string> next_choice() {
        if (choices.empty()) {
            return std::nullopt;
        }
        std::optional<std::string> next = choices.front();
        choices.pop_front();
        return next;
    }
};

/// A folder of its own for one test, removed at the end; the current folder is put back as it was.
class TempFolder {
  public:
    TempFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "gullymark_XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no folder for the test");
        }
        folder_ = std::filesystem::canonical(name);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
        std::filesystem::permissions(folder_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(folder_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] std::string path() const { return folder_.string(); }
    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }

  private:
    std::filesystem::path before_ = std::filesystem::current_path();
    std::filesystem::path folder_;
};

inline void write_file(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

inline std::string read_file(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

}  // namespace gullymark::testing_support
