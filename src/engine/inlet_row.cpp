#include "engine/inlet_row.h"

#include <utility>

namespace gullymark::engine {

void load_row(const platform::RowSet& rows, InletRecord& record) {
    for (const auto column : all_columns) {
        record.load(column, std::nullopt);
    }
    record.begin_new_changes();
    if (!rows.is_open() || rows.at_beginning() || rows.at_end()) {
        return;
    }
    platform::Row values = rows.row();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (const auto column = column_named(rows.columns()[i])) {
            record.load(*column, std::move(values[i]));
        }
    }
}

void save_row(platform::RowSet& rows, const InletRecord& record) {
    platform::Row values = rows.row();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (const auto column = column_named(rows.columns()[i])) {
            values[i] = record.value(*column);
        }
    }
    rows.save(values);
}

}  // namespace gullymark::engine
