#pragma once

#include <cstddef>
#include <string>

#include "platform/database.h"
#include "platform/row_set.h"

/// The data source behind a list of inlets: a connection of its own on the project file, a row set, and the texts that
/// the last query read. The list shows these until it queries again, whatever happens to the file meanwhile.
namespace gullymark::editor {

struct DataControl {
    std::string statement;
    platform::Connection connection;
    platform::RowSet rows;
    platform::TextRows texts;  // of `rows`
    std::string failure;       // why the last query failed; empty where it did not

    /// Runs the statement again, connecting to the project file first where that was not done; a file that the store
    /// found damaged is only read. The first row is then the current one. Throws Failure, and then keeps what it has.
    void refresh();

    /// The number of rows; 0 before the first query.
    [[nodiscard]] int record_count() const;

    /// A text of the row at `row` (1 is the first, 0 the heading); empty for a null, and for a row or a column that is
    /// not there.
    [[nodiscard]] std::string cell(int row, std::size_t column) const;

  private:
    /// Opens the connection on the project file; throws Failure where the project itself is not open.
    void connect();
};

}  // namespace gullymark::editor
