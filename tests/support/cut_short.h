#pragma once

#include <sqlite3.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

#include "support/child_process.h"

namespace gullymark::testing_support {

/// Another program changes every inlet of the project at `path`, adds some, and is killed before it has stored them: its
/// journal stays beside the file.
inline void cut_a_save_short(const std::string& path) {
    ChildProcess crash([&] {
        sqlite3* file = nullptr;
        sqlite3_open(path.c_str(), &file);
        sqlite3_exec(
            file,
            "PRAGMA cache_size = 1; PRAGMA cache_spill = 1; BEGIN; UPDATE INLET SET STATION = 'half';"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
            " INSERT INTO INLET (INLET_NUMBER) SELECT i FROM n",
            nullptr, nullptr, nullptr);
        _exit(0);
    });
    if (!crash.wait()) {
        throw std::runtime_error("no save to cut short");
    }
}

}  // namespace gullymark::testing_support
