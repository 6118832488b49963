#pragma once

#include <string>

#include "platform/database.h"

/// The data source behind a list of inlets: a connection of its own on the project file, and a row set.
namespace gullymark::editor {

struct DataControl {
    platform::Connection connection;
    platform::RowSet rows;

    /// Connects to the project file and runs `statement`; a file that the store found damaged is only read. Throws
    /// Failure.
    void open(const std::string& statement);

    /// Runs the statement again. Throws Failure.
    void refresh();

    /// The number of rows; 0 for one that is not open.
    [[nodiscard]] int record_count() const;

    /// A text of the row at `row` (1 is the first, 0 the heading); empty for a null, and for a row or a column that is
    /// not there any more.
    [[nodiscard]] std::string cell(int row, std::size_t column) const;
};

}  // namespace gullymark::editor
