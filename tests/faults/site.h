#pragma once

#include <sys/resource.h>

#include <functional>
#include <string>
#include <vector>

#include "support/child_process.h"
#include "support/outside_double.h"

/// What the trials share: a folder with a program and files in it, parts that run in a process of their own, counts.
namespace gullymark::faults {

/// The program's folder, a project, and what lies beside it. Everything goes when it ends.
class Site {
  public:
    explicit Site(std::string root);

    [[nodiscard]] std::string path(const std::string& name) const { return root_ + "/" + name; }
    [[nodiscard]] std::string program() const { return path("program"); }
    [[nodiscard]] std::string file() const { return path("work/road.gmk"); }
    [[nodiscard]] std::string journal() const { return file() + "-journal"; }
    [[nodiscard]] std::string report() const { return path("work/report.xls"); }

    /// The folder of the project holds a copy of `source` as the project, nothing else; no project when it is empty.
    void begin_anew(const std::string& source) const;
    /// The names in the folder of the project, joined by blanks.
    [[nodiscard]] std::string names() const;

  private:
    std::string root_;
};

/// How a process of its own ended that may take `processor_seconds`.
enum class End { well, crashed, took_too_long };
End run_apart(const std::function<void()>& action, rlim_t processor_seconds = 5);

std::string bytes_of(const std::string& path);

/// Every text of the project and the schema that they stand in.
std::string content_of(const std::string& path);

/// Empty when the file opens as a project without a complaint and is sound; else what is wrong.
std::string complaint_about(const Site& site, const std::string& path);

/// What a trial counted, and each thing that falls short.
struct Outcome {
    std::string name;
    std::vector<std::pair<std::string, int>> counts;
    std::vector<std::string> shortfalls;

    void count(const std::string& what, int more = 1);
    void fail(const std::string& what);
    /// Told on the standard output; true when nothing fell short.
    [[nodiscard]] bool tell() const;
};

}  // namespace gullymark::faults
