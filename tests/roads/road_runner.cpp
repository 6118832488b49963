#include "roads/road_runner.h"

#include <gtest/gtest.h>

#include <exception>
#include <stdexcept>
#include <utility>

#include "roads/road_words.h"

namespace gullymark::roads {
namespace {

using platform::Answer;
using platform::Box;
using platform::BoxKind;

// clang-format off
struct Deed {
    std::string_view pattern;
    bool (*run)(const Stage&, const Texts&);
};

constexpr auto deeds = std::to_array<Deed>({
    {"choose ...",          [](const Stage& s, const Texts& t) { return s.choose(join(t, " ")); }},
    {"press ...",           [](const Stage& s, const Texts& t) { return s.press(join(t, " ")); }},
    {"force ...",           [](const Stage& s, const Texts& t) { return s.force(join(t, " ")); }},
    {"type $ into $",       [](const Stage& s, const Texts& t) { return s.type(t[1], t[0]); }},
    {"paste $ into $",      [](const Stage& s, const Texts& t) { return s.paste(t[1], t[0]); }},
    {"pick $ in $",         [](const Stage& s, const Texts& t) { return s.pick(t[1], t[0]); }},
    {"open the list of $",  [](const Stage& s, const Texts& t) { return s.open_list(t[0]); }},
    {"check $",             [](const Stage& s, const Texts& t) { return !s.is_checked(t[0]) && s.click(t[0]); }},
    {"uncheck $",           [](const Stage& s, const Texts& t) { return s.is_checked(t[0]) && s.click(t[0]); }},
    {"leave",               [](const Stage& s, const Texts&) { return s.strike_tab(); }},
    {"strike Enter",        [](const Stage& s, const Texts&) { return s.strike_enter(); }},
    {"turn to ...",         [](const Stage& s, const Texts& t) { return s.turn(page_named(join(t, " "))); }},
    {"go to row $",         [](const Stage& s, const Texts& t) { return s.go_to_row(std::stoi(t[0])); }},
    {"go to the $",         [](const Stage& s, const Texts& t) { return s.go_to_window(t[0]); }},
    {"double-click row $",  [](const Stage& s, const Texts& t) { return s.double_click_row(std::stoi(t[0])); }},
    {"close the window",    [](const Stage& s, const Texts&) { return s.close(); }},
});

struct FileDeed {
    std::string_view pattern;
    void (*run)(RoadFile&, const Texts&);
};

constexpr auto file_deeds = std::to_array<FileDeed>({
    {"given project $ in $",            [](RoadFile& f, const Texts& t) { f.make(t[0], t[1]); }},
    {"given file $",                    [](RoadFile& f, const Texts& t) { f.copy(t[0]); }},
    {"given inlet ...",                 [](RoadFile& f, const Texts& t) { f.put_inlet(t); }},
    {"another program runs $",          [](RoadFile& f, const Texts& t) { static_cast<void>(f.run(t[0])); }},
    {"another program holds the file",  [](RoadFile& f, const Texts&) { f.hold(); }},
    {"another program locks the file",  [](RoadFile& f, const Texts&) { f.hold(true); }},
    {"another program lets go",         [](RoadFile& f, const Texts&) { f.let_go(); }},
});

std::string word(bool value, const char* yes, const char* no) {
    return value ? yes : no;
}

std::string cells(const Stage& s, const Texts& t) {
    Texts seen;
    for (std::size_t column = 1; column < t.size(); ++column) {
        seen.push_back(s.cell(std::stoi(t[0]), static_cast<int>(column) - 1));
    }
    return join(seen, " | ");
}

std::string first_cells(const Stage& s) {
    Texts seen;
    for (int row = 1; row <= s.row_count(); ++row) {
        seen.push_back(s.cell(row, 0));
    }
    return join(seen, " | ");
}

/// What is seen, and what should be.
using Pair = std::pair<std::string, std::string>;

struct Sight {
    std::string_view pattern;
    Pair (*look)(const Stage&, const Texts&);
};

constexpr auto sights = std::to_array<Sight>({
    {"window $",            [](const Stage& s, const Texts& t) { return Pair{s.window(), t[0]}; }},
    {"mode $",              [](const Stage& s, const Texts& t) { return Pair{s.panel(0, 2), t[0]}; }},
    {"number panel $",      [](const Stage& s, const Texts& t) { return Pair{s.panel(0, 4), t[0]}; }},
    {"project panel $",     [](const Stage& s, const Texts& t) { return Pair{s.panel(1, 1), t[0]}; }},
    {"kind panel $",        [](const Stage& s, const Texts& t) { return Pair{s.panel(1, 2), t[0]}; }},
    {"units panel $",       [](const Stage& s, const Texts& t) { return Pair{s.panel(1, 3), t[0]}; }},
    {"page ...",            [](const Stage& s, const Texts& t) { return Pair{page_names.at(static_cast<std::size_t>(s.page())), join(t, " ")}; }},
    {"focus in $",          [](const Stage& s, const Texts& t) { return Pair{s.focus(), t[0]}; }},
    {"picture $",           [](const Stage& s, const Texts& t) { return Pair{s.picture(), t[0]}; }},
    {"row $",               [](const Stage& s, const Texts& t) { return Pair{std::to_string(s.row()), t[0]}; }},
    {"rows ...",            [](const Stage& s, const Texts& t) { return Pair{first_cells(s), join(t, " | ")}; }},
    {"line ...",            [](const Stage& s, const Texts& t) { return Pair{cells(s, t), join(t, " | ", 1)}; }},
    {"command $ on",        [](const Stage& s, const Texts& t) { return Pair{word(s.is_command_on(t[0]), "on", "off"), "on"}; }},
    {"command $ off",       [](const Stage& s, const Texts& t) { return Pair{word(s.is_command_on(t[0]), "on", "off"), "off"}; }},
    {"button $ pressed",    [](const Stage& s, const Texts& t) { return Pair{word(s.is_pressed(t[0]), "pressed", "released"), "pressed"}; }},
    {"button $ released",   [](const Stage& s, const Texts& t) { return Pair{word(s.is_pressed(t[0]), "pressed", "released"), "released"}; }},
    {"$ on",                [](const Stage& s, const Texts& t) { return Pair{word(s.is_on(t[0]), "on", "off"), "on"}; }},
    {"$ off",               [](const Stage& s, const Texts& t) { return Pair{word(s.is_on(t[0]), "on", "off"), "off"}; }},
    {"$ checked",           [](const Stage& s, const Texts& t) { return Pair{word(s.is_checked(t[0]), "checked", "unchecked"), "checked"}; }},
    {"$ unchecked",         [](const Stage& s, const Texts& t) { return Pair{word(s.is_checked(t[0]), "checked", "unchecked"), "unchecked"}; }},
    {"$ shown",             [](const Stage& s, const Texts& t) { return Pair{word(s.is_shown(t[0]), "shown", "hidden"), "shown"}; }},
    {"$ hidden",            [](const Stage& s, const Texts& t) { return Pair{word(s.is_shown(t[0]), "shown", "hidden"), "hidden"}; }},
    {"$ captioned $",       [](const Stage& s, const Texts& t) { return Pair{s.caption(t[0]), t[1]}; }},
    {"$ offers ...",        [](const Stage& s, const Texts& t) { return Pair{join(s.entries(t[0]), " | "), join(t, " | ", 1)}; }},
    {"$ $",                 [](const Stage& s, const Texts& t) { return Pair{s.text(t[0]), t[1]}; }},
});

struct FileSight {
    std::string_view pattern;
    Pair (*look)(const RoadFile&, const Texts&);
};

/// Columns and values in turn.
Pair saved(const RoadFile& f, const Texts& t) {
    Texts columns;
    Texts values;
    for (std::size_t i = 1; i + 1 < t.size(); i += 2) {
        columns.push_back(t[i]);
        values.push_back(t[i + 1]);
    }
    return {f.saved(t[0], join(columns, ", ")), join(values, "|")};
}

constexpr auto file_sights = std::to_array<FileSight>({
    {"inlet $ saved with ...",  [](const RoadFile& f, const Texts& t) { return saved(f, t); }},
    {"no inlet $ saved",        [](const RoadFile& f, const Texts& t) { return Pair{f.saved(t[0], "INLET_NUMBER"), ""}; }},
    {"inlets ... ",             [](const RoadFile& f, const Texts& t) { return Pair{f.run("SELECT INLET_NUMBER FROM INLET ORDER BY 1"), join(t, "\n")}; }},
});

constexpr auto box_kinds = std::to_array<std::pair<std::string_view, BoxKind>>({
    {"plain", BoxKind::plain},
    {"information", BoxKind::information},
    {"warning", BoxKind::warning},
    {"warning question", BoxKind::warning_question},
    {"information question", BoxKind::information_question},
});
// clang-format on

struct ToldBox {
    Box box;
    Answer answer = Answer::ok;
    bool by_enter = false;  // the answer is what the key Enter gives
};

/// box KIND "text" [titled "title"] [answer Yes|No|Enter]
ToldBox told_box(const std::vector<Word>& words) {
    ToldBox told;
    std::string kind;
    std::size_t at = 1;
    for (; at < words.size() && !words[at].quoted; ++at) {
        kind += (kind.empty() ? "" : " ") + words[at].text;
    }
    told.box.text = words.at(at++).text;
    if (at + 1 < words.size() && words[at].text == "titled") {
        told.box.title = words[at + 1].text;
        at += 2;
    }
    if (at + 1 < words.size() && words[at].text == "answer") {
        told.answer = words[at + 1].text == "Yes" ? Answer::yes : Answer::no;
        told.by_enter = words[at + 1].text == "Enter";
        at += 2;
    }
    for (const auto& [name, box_kind] : box_kinds) {
        if (name == kind && at == words.size()) {
            told.box.kind = box_kind;
            return told;
        }
    }
    throw std::runtime_error(
        "a box is told as: box KIND \"text\" [titled \"title\"] [answer Yes, No or Enter]");
}

/// As a road tells it.
std::string box_text(const Box& box) {
    std::string text;
    for (const auto& [name, kind] : box_kinds) {
        if (kind == box.kind) {
            text = "box " + std::string(name);
        }
    }
    text += " \"" + box.text + '"';
    return box.title == platform::application_title ? text : text + " titled \"" + box.title + '"';
}

std::string line_text(const std::vector<Word>& words) {
    std::string text;
    for (const Word& word : words) {
        text += (text.empty() ? "" : " ") + (word.quoted ? '"' + word.text + '"' : word.text);
    }
    return text;
}

}  // namespace

Road::Road(std::string path, std::string folder)
    : path_(std::move(path)), lines_(read_road(path_)), file_(std::move(folder)) {}

void Road::run(const Stage& stage) {
    stage_ = &stage;
    while (next_ < lines_.size()) {
        if (lines_[next_].indented) {
            number_ = lines_[next_].number;
            fail("this did not come: " + line_text(lines_[next_].words));
            ++next_;
        } else {
            do_next_line();
        }
    }
}

Answer Road::answer(const Box& box) {
    const bool is_question =
        box.kind == BoxKind::warning_question || box.kind == BoxKind::information_question;
    if (!next_is("box")) {
        fail("a box that is not told: " + box_text(box));
        return is_question ? Answer::no : Answer::ok;
    }
    number_ = lines_[next_].number;
    ToldBox told = told_box(lines_[next_++].words);
    told.box.on_enter = box.on_enter;
    if (box != told.box) {
        fail("another box: " + box_text(box));
    }
    if (is_question != (told.answer != Answer::ok)) {
        fail("a question is answered Yes or No, and nothing else is");
    }
    return told.by_enter ? box.on_enter : told.answer;
}

std::optional<std::string> Road::choose_file() {
    if (!next_is("file")) {
        if (next_is("cancel")) {
            ++next_;
        } else {
            fail("a file dialog that is not told");
        }
        return std::nullopt;
    }
    const std::string path = file_.path(lines_[next_++].words.at(1).text);
    file_.work_on(path);
    return path;
}

bool Road::act_in_form() {
    if (next_ == lines_.size() || !lines_[next_].indented || next_is("box")) {
        fail("the form " + stage_->window() + " is still open");
        return false;
    }
    do_next_line();
    return true;
}

bool Road::next_is(const std::string& verb) const {
    return next_ < lines_.size() && lines_[next_].indented && lines_[next_].words[0].text == verb;
}

void Road::do_next_line() {
    const Line& line = lines_[next_++];
    number_ = line.number;
    try {
        do_line(line.words);
    } catch (const std::exception& exception) {
        number_ = line.number;
        fail(exception.what());
    }
}

void Road::do_line(const Words& words) {
    if (words[0].text == "expect") {
        Words clause;
        for (std::size_t i = 1; i < words.size(); ++i) {
            if (words[i] != Word{","}) {
                clause.push_back(words[i]);
            }
            if (words[i] == Word{","} || i + 1 == words.size()) {
                expect(std::exchange(clause, {}));
            }
        }
        return;
    }
    const bool tries = words[0].text == "try";
    const Words deed(words.begin() + (tries ? 1 : 0), words.end());
    if (do_on_file(deed)) {
        return;
    }
    const int number = number_;
    const bool done = do_deed(deed);
    number_ = number;
    if (done && tries) {
        fail("this happened: " + line_text(deed));
    } else if (!done && !tries) {
        fail("this was not possible: " + line_text(deed));
    }
}

bool Road::do_deed(const Words& words) {
    for (const Deed& deed : deeds) {
        if (const auto texts = fit(deed.pattern, words)) {
            return deed.run(*stage_, *texts);
        }
    }
    throw std::runtime_error("no such deed: " + line_text(words));
}

bool Road::do_on_file(const Words& words) {
    for (const FileDeed& deed : file_deeds) {
        if (const auto texts = fit(deed.pattern, words)) {
            deed.run(file_, *texts);
            return true;
        }
    }
    return false;
}

void Road::expect(const Words& clause) {
    for (const FileSight& sight : file_sights) {
        if (const auto texts = fit(sight.pattern, clause)) {
            const auto [seen, expected] = sight.look(file_, *texts);
            compare(clause, seen, expected);
            return;
        }
    }
    for (const Sight& sight : sights) {
        if (const auto texts = fit(sight.pattern, clause)) {
            const auto [seen, expected] = sight.look(*stage_, *texts);
            compare(clause, seen, expected);
            return;
        }
    }
    throw std::runtime_error("nothing to expect: " + line_text(clause));
}

void Road::compare(const Words& clause, const std::string& seen, const std::string& expected) const {
    if (seen != expected) {
        fail("expected " + line_text(clause) + ", seen: " + seen);
    }
}

void Road::fail(const std::string& text) const {
    ADD_FAILURE_AT(path_.c_str(), number_) << text;
}

}  // namespace gullymark::roads
