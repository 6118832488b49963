#include "roads/road_text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace gullymark::roads {
namespace {

constexpr const char* roads_folder = GULLYMARK_TEST_DIR "/cases/roads/";

char unescaped(char escape) {
    switch (escape) {
        case 'r':
            return '\r';
        case 'n':
            return '\n';
        default:
            return escape;
    }
}

/// The quotation that begins at `at`, which goes behind its end.
Word cut_quotation(const std::string& line, std::size_t& at) {
    Word word{.quoted = true};
    for (++at; at < line.size(); ++at) {
        if (line[at] == '"') {
            ++at;
            return word;
        }
        if (line[at] == '\\' && at + 1 < line.size()) {
            ++at;
            word.text += unescaped(line[at]);
        } else {
            word.text += line[at];
        }
    }
    throw std::runtime_error("a quotation has no end: " + line);
}

bool ends_word(char character) {
    return character == ' ' || character == ',' || character == '"' || character == '#';
}

}  // namespace

std::vector<Word> cut_words(const std::string& line) {
    std::vector<Word> words;
    std::size_t at = 0;
    while (at < line.size() && line[at] != '#') {
        if (line[at] == ' ') {
            ++at;
        } else if (line[at] == '"') {
            words.push_back(cut_quotation(line, at));
        } else {
            std::string word(1, line[at++]);
            while (word != "," && at < line.size() && !ends_word(line[at])) {
                word += line[at++];
            }
            words.push_back({.text = word});
        }
    }
    return words;
}

std::vector<Line> read_road(const std::string& path) {
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("no file " + path);
    }
    std::vector<Line> lines;
    std::string text;
    for (int number = 1; std::getline(file, text); ++number) {
        if (auto words = cut_words(text); !words.empty()) {
            lines.push_back({.number = number, .indented = text.starts_with(' '), .words = std::move(words)});
        }
    }
    return lines;
}

std::vector<std::string> road_names() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(roads_folder)) {
        if (entry.path().extension() == ".road") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string road_path(const std::string& name) {
    return std::string(roads_folder) + name + ".road";
}

}  // namespace gullymark::roads
