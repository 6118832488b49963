#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

/// What the program asks of its user and desktop, as one table of functions. The shell fills it once at start;
/// a test puts in functions of its own. A function that nobody has set does nothing and answers with its default.
namespace gullymark::platform {

/// The kinds of message box. Both questions have the buttons Yes and No, all others have OK alone.
enum class BoxKind { plain, information, warning, warning_question, information_question };

enum class Answer { ok, yes, no };

/// The title of every box that names none.
inline constexpr const char* application_title = "GullymarkAL";

struct Box {
    BoxKind kind = BoxKind::plain;
    std::string text;
    std::string title = application_title;
    Answer on_enter = Answer::no;  // of a question: what the key Enter answers

    bool operator==(const Box&) const = default;
};

/// What a file dialog shows; see file_dialog.h.
struct FileDialogRequest {
    bool saving = false;
    std::string title;
    std::string filter;  // "Gullymark files (*.gmk)|*.gmk"
    std::string initial_folder;
    std::string file_name;
    bool must_exist = false;
};

struct Outside {
    /// Shows a modal box and waits. Closing a question without a choice is "no".
    std::function<Answer(const Box&)> show_box;
    /// Shows a modal file dialog and waits; the full path chosen, nothing when it was canceled.
    /// It asks no question about overwriting: each flow asks its own.
    std::function<std::optional<std::string>(const FileDialogRequest&)> choose_file;
    /// Opens a help file in the desktop's viewer. No report of success.
    std::function<void(const std::string& path)> open_help;
    /// Shows the wait pointer (true) or the normal one (false).
    std::function<void(bool waiting)> show_wait_pointer;
    /// Lets the windows paint themselves and serve the clipboard while something outside is waited for; called many
    /// times a second. It takes no input.
    std::function<void()> keep_painting;
    /// Tells by a sound that an input was refused.
    std::function<void()> beep;
    /// Seconds since midnight, local time, with its fraction.
    std::function<double()> time_of_day;
    /// The date today, local time; where nobody set it, the system's.
    std::function<std::chrono::year_month_day()> today;
};

extern Outside outside;

/// Shows a box with an OK button and waits. Without `show_box` nobody is told.
void tell(const std::string& text, BoxKind kind = BoxKind::plain,
          const std::string& title = application_title);

/// Asks and waits; true for Yes. `on_enter` is what the key Enter answers: No, where a Yes takes something away.
/// Without `show_box` the answer is No.
bool ask(const std::string& text, BoxKind kind = BoxKind::warning_question,
         const std::string& title = application_title, Answer on_enter = Answer::no);

/// The function of the table of the same name; nothing where nobody set one.
void show_wait_pointer(bool waiting);
/// The function of the table of the same name; nothing where nobody set one.
void keep_painting();
/// The function of the table of the same name; nothing where nobody set one.
void beep();
/// The date that the table gives, else the system's, local time.
[[nodiscard]] std::chrono::year_month_day today();

}  // namespace gullymark::platform
