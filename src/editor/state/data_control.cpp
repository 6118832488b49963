#include "editor/state/data_control.h"

#include <utility>

#include "platform/failure.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::editor {

void DataControl::connect() {
    // What the project's own connection refused is not read by the way of a list's.
    if (!store::project_store.connection.is_open()) {
        throw platform::Failure(platform::no_file_is_open);
    }
    connection.open(store::session.projectFilePath);
    if (store::project_store.connection.refuses_writes()) {
        connection.refuse_writes();
    }
}

void DataControl::refresh() {
    try {
        if (!connection.is_open()) {
            connect();
        }
        platform::RowSet queried;
        queried.open(connection, statement);
        if (!queried.has_same_rows(rows)) {
            texts = queried.read_texts();
        }
        rows = std::move(queried);
        failure.clear();
    } catch (const platform::Failure& why) {
        failure = why.what();
        throw;
    }
}

int DataControl::record_count() const {
    return static_cast<int>(texts.count());
}

std::string DataControl::cell(int row, std::size_t column) const {
    return row < 1 ? "" : std::string(texts.text(static_cast<std::size_t>(row - 1), column));
}

}  // namespace gullymark::editor
