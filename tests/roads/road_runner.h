#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/outside.h"
#include "roads/road_file.h"
#include "roads/road_text.h"

/// Runs a road: a text that tells what a designer does and what he then sees.
///
/// What he does and sees goes through one table of functions, the stage. One stage is the logic alone, another the
/// real windows; a road runs on both alike.
namespace gullymark::roads {

/// What the user can do, and see. Fields have their prescribed names; `window` names the window in front: "main",
/// "details", "workspace", "renumber", "listing" or "view".
///
/// A deed is false where the program does not let it happen: a command that is off, a field that cannot be typed in,
/// a field before it that refuses to be left. A name that the window does not have throws std::runtime_error.
struct Stage {
    // What the user does.
    std::function<bool(const std::string& caption)> choose;  // a command of the window's menu
    std::function<bool(const std::string& caption)> press;   // a button of the tool bar or of a form
    std::function<bool(const std::string& field, const std::string& keys)> type;  // in place of its text
    std::function<bool(const std::string& field, const std::string& text)> paste;
    std::function<bool(const std::string& field, const std::string& entry)> pick;
    std::function<bool(const std::string& field)> open_list;  // and closes it without a pick
    std::function<bool(const std::string& field)> click;
    std::function<bool()> strike_tab;
    std::function<bool()> strike_enter;
    std::function<bool(int page)> turn;                           // a page of the form, from 0
    std::function<bool(int row)> go_to_row;                       // of the grid or the listing, from 1
    std::function<bool(int row)> double_click_row;                // of the listing
    std::function<bool(const std::string& window)> go_to_window;  // one that is shown beside others
    std::function<bool()> close;                                  // by the window's own button
    std::function<bool(const std::string& caption)> force;        // a command though it is off

    // What he sees.
    std::function<std::string()> window;
    std::function<std::string(const std::string& field)> text;
    std::function<bool(const std::string& field)> is_on;  // can be typed in, picked or clicked
    std::function<bool(const std::string& field)> is_checked;
    std::function<bool(const std::string& field)> is_shown;
    std::function<std::string(const std::string& field)> caption;  // of a label, a frame, a unit label
    std::function<std::vector<std::string>(const std::string& field)> entries;
    std::function<bool(const std::string& caption)> is_command_on;
    std::function<bool(const std::string& caption)> is_pressed;
    std::function<std::string()>
        picture;                         // what it says of its water: "solved", "not solved" or "no results"
    std::function<std::string()> focus;  // the field that the user is in, empty for none
    std::function<int()> page;
    std::function<std::string(int bar, int panel)> panel;  // bar 0: screenmode, 1: StatusBar; panels from 1
    std::function<int()> row;                              // of the grid or the listing; 0: none
    std::function<int()> row_count;
    std::function<std::string(int row, int column)> cell;  // columns from 0
};

/// One run of one road.
class Road {
  public:
    /// Reads the file at `path`; `folder` is empty and gets the project files. Throws std::runtime_error.
    Road(std::string path, std::string folder);

    /// Goes the road. What is not as it tells is reported at its line, and the road goes on with the next one.
    void run(const Stage& stage);

    // What a stage asks meanwhile; the indented lines tell.

    /// A box is up: how it is answered.
    platform::Answer answer(const platform::Box& box);
    /// A file dialog is up: the path that is chosen in it, nothing for a cancel.
    std::optional<std::string> choose_file();
    /// A modal form is up: does the next thing in it. False, with a report, where the road tells nothing more of it.
    bool act_in_form();

  private:
    using Words = std::vector<Word>;

    void do_next_line();
    void do_line(const Words& words);
    bool do_deed(const Words& words);
    bool do_on_file(const Words& words);
    void expect(const Words& clause);
    void compare(const Words& clause, const std::string& seen, const std::string& expected) const;
    [[nodiscard]] bool next_is(const std::string& verb) const;
    void fail(const std::string& text) const;

    std::string path_;
    std::vector<Line> lines_;
    std::size_t next_ = 0;
    int number_ = 0;  // of the line that runs
    const Stage* stage_ = nullptr;
    RoadFile file_;
};

}  // namespace gullymark::roads
