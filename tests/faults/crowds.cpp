#include <sqlite3.h>

#include <cstdlib>
#include <random>

#include "faults/trials.h"
#include "support/sqlite_file.h"

namespace gullymark::faults {
namespace {

using testing_support::ChildProcess;
using testing_support::run_sql;
using testing_support::SharedNumber;

std::atomic<int>* stored = nullptr;

void row_was_stored(void* /*context*/, int what, const char* /*file*/, const char* /*table*/,
                    sqlite3_int64 /*key*/) {
    *stored += what == SQLITE_UPDATE ? 1 : 0;
}

int watch_rows(sqlite3* file, char** /*message*/, const sqlite3_api_routines* /*routines*/) {
    sqlite3_update_hook(file, row_was_stored, nullptr);
    return SQLITE_OK;
}

/// Counts the stations of random rows on by one, under a name; `stored_edits` is how many of them the file took.
void count_on(const Site& site, const char* name, unsigned seed, int edits, std::atomic<int>& stored_edits) {
    stored = &stored_edits;
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(watch_rows));
    std::mt19937 random(seed);
    Designer designer(site.program());
    designer.open(site.file());
    for (int edit = 0; edit < edits; ++edit) {
        const int row = 1 + static_cast<int>(random() % static_cast<unsigned>(Designer::rows()));
        designer.edit(row, [&](const std::string& station) {
            return std::to_string(std::atoi(station.c_str()) + 1) + name;
        });
    }
}

}  // namespace

Outcome work_in_many(const Site& site, int inlets) {
    Outcome outcome{.name = "many inlets"};
    const std::string path = site.path("many.gmk");
    make_project(site.program(), path, inlets);
    const End end = run_apart(
        [&] {
            Designer designer(site.program());
            designer.open(path);
            if (Designer::rows() != inlets) {
                throw std::runtime_error("rows are missing");
            }
            designer.edit(inlets / 2, "edited");
            designer.copy(inlets / 2, "C-1");
            designer.remove(Designer::rows());
            designer.renumber(2, "A");
            designer.close();
        },
        RLIM_INFINITY - 1);
    outcome.count("inlets", inlets);
    if (end != End::well) {
        outcome.fail("the program does not come to the end of the work");
    }
    // The copy takes the station over, and sorts before the rest: the last inlet is the one that was removed.
    const auto state = testing_support::run_sql(
        path,
        "SELECT count(*), sum(STATION = 'edited'), sum(INLET_NUMBER = 'A'), sum(PREINLET1 = 'A') FROM INLET");
    if (state != std::to_string(inlets) + "|2|1|1") {
        outcome.fail("the file holds " + state);
    }
    if (const auto check = testing_support::run_sql(path, "PRAGMA integrity_check"); check != "ok") {
        outcome.fail(check);
    }
    return outcome;
}

Outcome work_two_at_once(const Site& site, int edits) {
    Outcome outcome{.name = "two programs on one file"};
    const std::string road = site.path("road.gmk");
    site.begin_anew(road);
    const SharedNumber stored_by_first;
    const SharedNumber stored_by_second;
    ChildProcess first([&] { count_on(site, "A", 1, edits, *stored_by_first); });
    ChildProcess second([&] { count_on(site, "B", 2, edits, *stored_by_second); });
    const bool first_ended = first.wait();
    const bool second_ended = second.wait();
    if (!first_ended || !second_ended) {
        outcome.fail("a program crashes");
    }
    outcome.count("edits", 2 * edits);
    outcome.count("stored by the first", *stored_by_first);
    outcome.count("stored by the second", *stored_by_second);
    const auto counted = run_sql(site.file(), "SELECT sum(CAST(STATION AS INTEGER)) FROM INLET");
    if (counted != std::to_string(*stored_by_first + *stored_by_second)) {
        outcome.fail("edits overwritten by one that had not seen them: the stations count " + counted);
    }
    const auto torn = "SELECT INLET_NUMBER FROM INLET WHERE STATION IS NOT ROADWAY AND STATION IS NOT NULL";
    if (const auto rows = run_sql(site.file(), torn); !rows.empty()) {
        outcome.fail("a row is of both: " + rows);
    }
    const auto untouched = "SELECT * FROM PROJECT; SELECT rowid, INLET_NUMBER, PREINLET1 FROM INLET";
    if (run_sql(site.file(), untouched) != run_sql(road, untouched)) {
        outcome.fail("more was changed than what was typed");
    }
    if (const auto complaint = complaint_about(site, site.file()); !complaint.empty()) {
        outcome.fail(complaint);
    }
    return outcome;
}

}  // namespace gullymark::faults
