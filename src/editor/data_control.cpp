#include "editor/data_control.h"

#include "platform/failure.h"
#include "store/project_session.h"
#include "store/project_store.h"

namespace gullymark::editor {

void DataControl::open(const std::string& statement) {
    rows = platform::RowSet();
    connection = platform::Connection();
    // What the project's own connection refused is not read by the way of a list's.
    if (!store::project_store.connection.is_open()) {
        throw platform::Failure("the project file is not open");
    }
    connection.open(store::session.projectFilePath);
    if (store::project_store.connection.refuses_writes()) {
        connection.refuse_writes();
    }
    rows.open(connection, statement);
}

void DataControl::refresh() {
    rows.requery();
}

int DataControl::record_count() const {
    return rows.is_open() ? static_cast<int>(rows.record_count()) : 0;
}

std::string DataControl::cell(int row, std::size_t column) const {
    if (row < 1 || row > record_count()) {
        return "";
    }
    try {
        const platform::Row values = rows.row_at(static_cast<std::size_t>(row - 1));
        return column < values.size() ? values[column].value_or("") : "";
    } catch (const platform::Failure&) {
        return "";
    }
}

}  // namespace gullymark::editor
