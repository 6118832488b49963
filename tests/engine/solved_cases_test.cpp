#include <gtest/gtest.h>

#include <string>

#include "tools/case_table.h"

namespace gullymark::cases {
namespace {

class SolvedCases : public testing::TestWithParam<const char*> {};

TEST_P(SolvedCases, EveryCellOfTheTableAgrees) {
    const Table table = read_table(std::string(GULLYMARK_TEST_DIR) + "/cases/" + GetParam());
    ASSERT_FALSE(table.rows.empty());
    std::size_t cells = 0;
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const auto comparison = compare_row(table, table.rows[i]);
        cells += comparison.cells;
        for (const auto& [column, expected, computed] : comparison.differences) {
            ADD_FAILURE() << "line " << i + 2 << ": " << column << " expected \"" << expected
                          << "\", computed \"" << computed << '"';
        }
    }
    EXPECT_GT(cells, 0U);
}

INSTANTIATE_TEST_SUITE_P(Tables, SolvedCases,
                         testing::Values("solves_ordinary.tsv", "solves_boundary.tsv", "solves_deep.tsv",
                                         "solves_unreadable.tsv"),
                         [](const auto& table) {
                             const std::string name = table.param;
                             return name.substr(0, name.find('.'));
                         });

}  // namespace
}  // namespace gullymark::cases
