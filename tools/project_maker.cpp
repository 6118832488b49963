#include "tools/project_maker.h"

#include <iomanip>
#include <sstream>

#include "engine/inlet_record.h"
#include "platform/database.h"
#include "platform/files.h"
#include "tools/case_table.h"

namespace gullymark::tools {
namespace {

using engine::Column;

/// Rows of one kind follow each other in a table: this far on stands another kind. A prime passes over no row.
constexpr std::size_t stride = 37;

std::string inlet_number(std::size_t index) {
    std::ostringstream number;
    number << "I-" << std::setw(6) << std::setfill('0') << index + 1;
    return number.str();
}

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text) {
        result += c;
        if (c == '\'') {
            result += c;
        }
    }
    return result + "'";
}

std::string insert_statement(const engine::InletRecord& inlet) {
    std::string columns;
    std::string values;
    for (const auto column : engine::all_columns) {
        if (!inlet.is_null(column)) {
            columns += (columns.empty() ? "" : ", ") + std::string(engine::column_name(column));
            values += (values.empty() ? "" : ", ") + quoted(inlet.text(column));
        }
    }
    return "INSERT INTO INLET (" + columns + ") VALUES (" + values + ")";
}

void add_inlet(platform::Connection& connection, std::size_t index) {
    auto& inlet = engine::open_inlet;
    inlet.load(Column::INLET_NUMBER, inlet_number(index));
    inlet.load(Column::PROJECT_ID, "P-1");
    inlet.load(Column::ROADWAY, "County Road 12");
    inlet.load(Column::STATION, std::to_string(10 + index / 2) + "+50.00");
    inlet.load(Column::OFFSET, index % 2 == 0 ? "12.000" : "-12.000");
    inlet.load(Column::OFFSET_LOCATION, index % 2 == 0 ? "RIGHT" : "LEFT");
    inlet.load(Column::PREINLET1, index % 10 == 9 ? inlet_number(index - 1) : "");
    connection.execute(insert_statement(inlet));
}

}  // namespace

void make_project(const std::string& template_path, const std::string& table, const std::string& path,
                  std::size_t inlets) {
    platform::copy_file(template_path, path);
    platform::Connection connection;
    connection.open(path);
    connection.execute("BEGIN");
    connection.execute(
        "INSERT INTO PROJECT (PROJECT_ID, PROJECT_NAME, DESCRIPTION, LOCATION, COUNTY, STATE, DESIGNER, "
        "UNITS) "
        "VALUES ('P-1', 'Measured road', '', '', 'Autauga', 'AL', 'A. Designer', 'ENGLISH')");
    const auto rows = cases::read_table(table);
    std::size_t next = 0;
    for (std::size_t index = 0; index < inlets; ++index) {
        while (cases::cell(rows, rows.rows[next % rows.rows.size()], "UNITS") != "ENGLISH") {
            next += stride;
        }
        cases::solve_row(rows, rows.rows[next % rows.rows.size()]);
        next += stride;
        add_inlet(connection, index);
    }
    connection.execute("COMMIT");
}

}  // namespace gullymark::tools
