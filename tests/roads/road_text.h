#pragma once

#include <string>
#include <vector>

/// The text of a road, cut into lines and words; tests/cases/roads/README.md tells the format.
namespace gullymark::roads {

struct Word {
    std::string text;
    bool quoted = false;

    bool operator==(const Word&) const = default;
};

/// A line that says something. An indented one tells of a box or a form that the line above brings up.
struct Line {
    int number = 0;
    bool indented = false;
    std::vector<Word> words;
};

/// Reads a file; what is wrong with it is thrown as std::runtime_error.
std::vector<Line> read_road(const std::string& path);

/// Cuts one line: words at blanks, a comma is a word of its own, "..." is one word with \" \\ \r \n in it, # begins a
/// remark. Throws std::runtime_error for a quotation without an end.
std::vector<Word> cut_words(const std::string& line);

/// The roads under tests/cases: the names of their files without the extension, in order.
std::vector<std::string> road_names();
/// The file of one.
std::string road_path(const std::string& name);

}  // namespace gullymark::roads
