#include "faults/deeds.h"

#include <sqlite3.h>

#include <functional>
#include <utility>

namespace gullymark::faults {
namespace {

std::string label(const char* word, int number) {
    return word + std::to_string(number);
}

void edit(Designer& designer, const Site& /*site*/, int number) {
    if (Designer::rows() > 0) {  // nothing is listed any more of a file that was taken away
        designer.edit(1 + number % Designer::rows(), label("edited ", number));
    }
}
void copy(Designer& designer, const Site& /*site*/, int number) {
    designer.copy(1, label("C-", number));
}
/// The last row: no other names it.
void remove(Designer& designer, const Site& /*site*/, int /*number*/) {
    designer.remove(Designer::rows());
}
void renumber(Designer& designer, const Site& /*site*/, int number) {
    designer.renumber(1 + number, label("I-0000", 1 + number) + "A");
}
void save_details(Designer& designer, const Site& /*site*/, int number) {
    designer.save_details(label("Mill Road ", number));
}
/// Opening is the deed.
void upgrade(Designer& /*designer*/, const Site& /*site*/, int /*number*/) {}

// Statements seen through the engine's own trace, of every connection of this process.
std::function<void()> on_statement;

int statement_ended(unsigned /*event*/, void* /*context*/, void* /*statement*/, void* /*time*/) {
    if (const auto look = std::exchange(on_statement, nullptr)) {
        look();
        on_statement = look;
    }
    return 0;
}

int trace_statements(sqlite3* file, char** /*message*/, const sqlite3_api_routines* /*routines*/) {
    return sqlite3_trace_v2(file, SQLITE_TRACE_PROFILE, statement_ended, nullptr);
}

class Tracing {
  public:
    explicit Tracing(const std::function<void()>& look) {
        on_statement = look;
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(trace_statements));
    }
    ~Tracing() {
        sqlite3_reset_auto_extension();
        on_statement = nullptr;
    }
    Tracing(const Tracing&) = delete;
    Tracing& operator=(const Tracing&) = delete;
};

}  // namespace

std::vector<Deed> deeds_in_a_project(const Site& site) {
    const std::string road = site.path("road.gmk");
    const std::string old_road = site.path("old_road.gmk");
    make_project(site.program(), road, 20);
    std::filesystem::copy_file(GULLYMARK_TEST_DIR "/files/augustl_2007.gmk", old_road,
                               std::filesystem::copy_options::overwrite_existing);
    return {
        {"save", road, edit},         {"copy and save", road, copy},   {"delete", road, remove},
        {"renumber", road, renumber}, {"details", road, save_details}, {"upgrade", old_road, upgrade, true},
    };
}

Course run_undisturbed(const Site& site, const Deed& deed, int count) {
    site.begin_anew(deed.old_file);
    Course course;
    course.states.push_back(content_of(site.file()));
    Designer designer(site.program());
    const Tracing tracing([&] {
        const auto content = content_of(site.file());
        if (content != course.states.back()) {
            course.states.push_back(content);
        }
    });
    designer.open(site.file());
    course.after_deed.push_back(course.states.size() - 1);
    for (int number = 0; number < count; ++number) {
        deed.act(designer, site, number);
        course.after_deed.push_back(course.states.size() - 1);
    }
    return course;
}

}  // namespace gullymark::faults
