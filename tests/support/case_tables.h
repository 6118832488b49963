#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "tools/case_table.h"

/// The tables of solved inlets (tests/cases/README.md), for tests that go through all of them.
namespace gullymark::testing_support {

inline constexpr std::array case_tables{"solves_ordinary.tsv", "solves_boundary.tsv", "solves_deep.tsv",
                                        "solves_unreadable.tsv", "solves_help.tsv"};

inline cases::Table read_case_table(const std::string& name) {
    return cases::read_table(GULLYMARK_TEST_DIR "/cases/" + name);
}

/// Names a test by its table: "solves_ordinary".
inline std::string name_by_table(const testing::TestParamInfo<const char*>& table) {
    const std::string name = table.param;
    return name.substr(0, name.find('.'));
}

}  // namespace gullymark::testing_support
