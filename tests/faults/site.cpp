#include "faults/site.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "faults/designer.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace gullymark::faults {

namespace fs = std::filesystem;

Site::Site(std::string root) : root_(std::move(root)) {
    fs::create_directories(path("work"));
    fs::create_directories(program());
    for (const char* name : {"GullymarkAL10.rdb", "INLET_REPORTAL.xlr", "INLETDESIGNFORMAL.xlr"}) {
        fs::copy_file(std::string(GULLYMARK_PROGRAM_FOLDER "/") + name, program() + "/" + name);
    }
}

void Site::begin_anew(const std::string& source) const {
    fs::create_directories(path("work"));
    for (const auto& entry : fs::directory_iterator(path("work"))) {
        fs::remove_all(entry);
    }
    if (!source.empty()) {
        fs::copy_file(source, file());
    }
}

std::string Site::names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path("work"))) {
        names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    std::string joined;
    for (const auto& name : names) {
        joined += (joined.empty() ? "" : " ") + name;
    }
    return joined;
}

End run_apart(const std::function<void()>& action, rlim_t processor_seconds) {
    testing_support::ChildProcess child([&] {
        const rlimit limit{processor_seconds, processor_seconds + 1};
        setrlimit(RLIMIT_CPU, &limit);
        const rlimit no_core{0, 0};
        setrlimit(RLIMIT_CORE, &no_core);
        action();
    });
    return child.wait() ? End::well : child.signal() == SIGXCPU ? End::took_too_long : End::crashed;
}

std::string bytes_of(const std::string& path) {
    return testing_support::read_file(path);
}

std::string content_of(const std::string& path) {
    return testing_support::run_sql(path,
                                    "SELECT sql FROM sqlite_schema; SELECT * FROM PROJECT;"
                                    "SELECT rowid, * FROM INLET ORDER BY rowid");
}

std::string complaint_about(const Site& site, const std::string& path) {
    const End end = run_apart([&] {
        Designer designer(site.program());
        designer.open(path);
        if (designer.boxes.size() != 1 || !designer.boxes[0].text.starts_with("Project Name: ")) {
            throw std::runtime_error("it is not opened");
        }
        designer.look_at_every_row();
    });
    if (end != End::well) {
        return end == End::crashed ? "it does not open" : "it takes too long to open";
    }
    const auto check = testing_support::run_sql(path, "PRAGMA integrity_check");
    return check == "ok" ? "" : check;
}

void Outcome::count(const std::string& what, int more) {
    const auto found = std::ranges::find(counts, what, &std::pair<std::string, int>::first);
    if (found == counts.end()) {
        counts.emplace_back(what, more);
    } else {
        found->second += more;
    }
}

void Outcome::fail(const std::string& what) {
    shortfalls.push_back(what);
}

bool Outcome::tell() const {
    std::cout << name << ':';
    for (const auto& [what, number] : counts) {
        std::cout << ' ' << number << ' ' << what << (what == counts.back().first ? "" : ",");
    }
    std::cout << "; " << shortfalls.size() << " fell short" << std::endl;
    constexpr std::size_t shown = 20;
    for (std::size_t i = 0; i < std::min(shortfalls.size(), shown); ++i) {
        std::cout << "  " << shortfalls[i] << '\n';
    }
    return shortfalls.empty();
}

}  // namespace gullymark::faults
