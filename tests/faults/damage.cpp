#include <sqlite3.h>

#include <map>
#include <random>

#include "faults/trials.h"
#include "support/sqlite_file.h"

namespace gullymark::faults {
namespace {

using testing_support::write_file;

constexpr rlim_t most_seconds = 5;

/// The rows that can be read one by one: all texts of each, by its key.
using Readable = std::map<std::int64_t, std::string>;

Readable read_rows(const std::string& path, int most) {
    Readable rows;
    sqlite3* file = nullptr;
    sqlite3_stmt* query = nullptr;
    sqlite3_open_v2(path.c_str(), &file, SQLITE_OPEN_READONLY, nullptr);
    if (sqlite3_prepare_v2(file, "SELECT * FROM INLET WHERE rowid = ?1", -1, &query, nullptr) == SQLITE_OK) {
        for (std::int64_t key = 1; key <= most; ++key) {
            sqlite3_bind_int64(query, 1, key);
            if (sqlite3_step(query) == SQLITE_ROW) {
                for (int column = 0; column < sqlite3_column_count(query); ++column) {
                    const unsigned char* bytes = sqlite3_column_text(query, column);
                    rows[key] += bytes == nullptr
                                     ? "NULL"
                                     : std::string(bytes, bytes + sqlite3_column_bytes(query, column));
                    rows[key] += '|';
                }
            }
            sqlite3_reset(query);
        }
    }
    sqlite3_finalize(query);
    sqlite3_close(file);
    return rows;
}

bool is_sound(const std::string& path) {
    try {
        return testing_support::run_sql(path, "PRAGMA integrity_check") == "ok";
    } catch (const std::runtime_error&) {
        return false;
    }
}

/// From one to eight bytes become others; half of the changes fall on the heads of pages, where they do most harm.
std::string damaged(std::string content, std::mt19937& random) {
    constexpr std::size_t page = 4096;
    const auto changes = 1U + random() % 8U;
    for (unsigned i = 0; i < changes; ++i) {
        std::size_t at = random() % content.size();
        if (random() % 2 == 0) {
            at = at / page * page + random() % 120U;
        }
        content[at % content.size()] = static_cast<char>(random());
    }
    return content;
}

struct Touched {
    testing_support::SharedNumber edited;
    testing_support::SharedNumber removed;
    testing_support::SharedNumber refused;
};

/// The key of the inlet in a row of the grid; 0 for none.
int key_of(const std::string& path, const std::string& number) {
    try {
        const auto key =
            testing_support::run_sql(path, "SELECT rowid FROM INLET WHERE INLET_NUMBER = '" + number + "'");
        return key.empty() ? 0 : std::stoi(key);
    } catch (const std::exception&) {
        return 0;
    }
}

void work(const Site& site, int seed, const Touched& touched) {
    Designer designer(site.program());
    designer.open(site.file());
    *touched.refused = !designer.boxes.empty() && designer.boxes[0].kind == platform::BoxKind::plain ? 1 : 0;
    designer.look_at_every_row();
    if (Designer::rows() == 0) {
        return;
    }
    const int row = 1 + seed % Designer::rows();
    *touched.edited = key_of(site.file(), Designer::number_in(row));
    designer.edit(row, "edited");
    designer.copy(row, "C-1");
    *touched.removed = key_of(site.file(), Designer::number_in(Designer::rows()));
    designer.remove(Designer::rows());
    designer.save_details("Mill Road again");
}

void compare(const Readable& before, const Readable& after, const Touched& touched, Outcome& outcome,
             const std::string& round) {
    for (const auto& [key, texts] : before) {
        const auto found = after.find(key);
        if (key == *touched.edited || key == *touched.removed) {
            continue;
        }
        if (found == after.end()) {
            outcome.fail(round + "row " + std::to_string(key) + " cannot be read any more");
            return;
        }
        if (found->second != texts) {
            outcome.fail(round + "row " + std::to_string(key) + " has other texts");
            return;
        }
    }
}

}  // namespace

Outcome damage_bytes(const Site& site, int times, int first_seed) {
    Outcome outcome{.name = "random bytes changed"};
    constexpr int inlets = 20;
    const std::string whole = bytes_of(site.path("road.gmk"));
    for (int seed = first_seed; seed < first_seed + times; ++seed) {
        std::mt19937 random(static_cast<unsigned>(seed));
        const auto round = "seed " + std::to_string(seed) + ": ";
        site.begin_anew("");
        write_file(site.file(), damaged(whole, random));
        const bool sound = is_sound(site.file());
        const Readable before = read_rows(site.file(), inlets);
        const Touched touched;
        const End end = run_apart([&] { work(site, seed, touched); }, most_seconds);
        outcome.count("files");
        outcome.count("unsound", sound ? 0 : 1);
        outcome.count("with a box at open", *touched.refused);
        if (end != End::well) {
            outcome.fail(round + (end == End::crashed ? "crashes" : "hangs"));
            continue;
        }
        compare(before, read_rows(site.file(), inlets), touched, outcome, round);
        if (sound && !is_sound(site.file())) {
            outcome.fail(round + "a sound file is unsound");
        }
    }
    return outcome;
}

}  // namespace gullymark::faults
