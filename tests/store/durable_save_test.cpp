// A save that a crash cuts short: the row is the old one or the new one, never a part of each.

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <random>
#include <thread>

#include "platform/files.h"
#include "platform/row_set.h"
#include "store/project_store.h"
#include "support/child_process.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace {

using gullymark::platform::Connection;
using gullymark::platform::Row;
using gullymark::platform::RowSet;
using gullymark::store::select_inlets;
using gullymark::testing_support::ChildProcess;
using gullymark::testing_support::run_sql;
using gullymark::testing_support::SharedNumber;
using gullymark::testing_support::TempFolder;

/// The same text in every column, so that a part of another row shows. Together they need more than one page.
Row row_of(int number, std::size_t columns) {
    return Row(columns, std::to_string(number) + std::string(100, '.'));
}

int number_in(const Row& row) {
    return std::stoi(row.front().value());
}

/// Saves the first inlet with growing numbers until it is killed; `saved` is the last that came back.
void save_without_end(const std::string& path, std::atomic<int>& saved) {
    Connection connection;
    connection.open(path);
    RowSet inlets;
    inlets.open(connection, select_inlets);
    for (int number = number_in(inlets.row()) + 1;; ++number) {
        inlets.save(row_of(number, inlets.columns().size()));
        saved = number;
    }
}

TEST(DurableSave, KilledAHundredTimesARowIsAlwaysWhollyOldOrNew) {
    const TempFolder folder;
    const std::string path = folder.path("road.gmk");
    gullymark::platform::copy_file(GULLYMARK_TEMPLATE, path);
    const std::size_t columns = std::stoul(run_sql(path, "SELECT count(*) FROM pragma_table_info('INLET')"));
    {
        Connection connection;
        connection.open(path);
        RowSet inlets;
        inlets.open(connection, select_inlets);
        inlets.add_new();
        inlets.save(row_of(0, columns));
    }
    const SharedNumber saved;
    std::mt19937 random(20100501);
    std::uniform_int_distribution<int> microseconds(0, 10'000);
    int cut_short = 0;
    for (int round = 0; round < 100; ++round) {
        const int before = *saved;
        ChildProcess child([&] { save_without_end(path, *saved); });
        const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (*saved == before && std::chrono::steady_clock::now() < patience) {
            std::this_thread::sleep_for(std::chrono::microseconds(100));
        }
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        child.kill();
        ASSERT_FALSE(child.wait());
        ASSERT_GT(*saved, before) << "nothing was saved in time";
        cut_short += std::filesystem::exists(path + "-journal") ? 1 : 0;

        Connection connection;
        ASSERT_NO_THROW(connection.open(path)) << "round " << round;
        RowSet inlets;
        inlets.open(connection, select_inlets);
        ASSERT_EQ(inlets.record_count(), 1U);
        const Row row = inlets.row();
        ASSERT_EQ(row, row_of(number_in(row), columns)) << "round " << round;
        ASSERT_GE(number_in(row), *saved) << "a save that had come back is lost";
        ASSERT_LE(number_in(row), *saved + 1);
        ASSERT_EQ(run_sql(path, "PRAGMA integrity_check"), "ok");
        *saved = number_in(row);
    }
    EXPECT_GT(cut_short, 0) << "no kill fell into a save";
    RecordProperty("cut_short", cut_short);
}

}  // namespace
