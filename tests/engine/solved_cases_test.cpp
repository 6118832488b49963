#include <gtest/gtest.h>

#include <string>

#include "support/case_tables.h"

namespace gullymark::cases {
namespace {

class SolvedCases : public testing::TestWithParam<const char*> {};

TEST_P(SolvedCases, EveryCellOfTheTableAgrees) {
    const Table table = testing_support::read_case_table(GetParam());
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

INSTANTIATE_TEST_SUITE_P(Tables, SolvedCases, testing::ValuesIn(testing_support::case_tables),
                         testing_support::name_by_table);

}  // namespace
}  // namespace gullymark::cases
