#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Project files made to harm: each is a project of three inlets with one thing in it that no project has. They are the
/// same at every run.
namespace gullymark::hostile {

enum class Outcome {
    opens,     // as a project like any other
    damaged,   // for reading only, after a word on it
    too_long,  // the same for a text that is too long to read
    refused    // in these words
};

struct HostileFile {
    std::string_view name;
    Outcome outcome;
    std::string description;  // of the refusal
    std::function<void(const std::string& path)> spoil;
};

/// What the pages of a file hold is made in `hostile_pages.cpp`, all else in `hostile_files.cpp`.
std::vector<HostileFile> schema_files();
std::vector<HostileFile> page_files();

/// The project before it is spoiled.
void make_project(const std::string& path);

}  // namespace gullymark::hostile
