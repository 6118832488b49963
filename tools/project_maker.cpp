#include "tools/project_maker.h"

#include "platform/database.h"
#include "platform/files.h"
#include "platform/number_text.h"
#include "tools/case_table.h"

namespace gullymark::tools {
namespace {

using engine::Column;

/// Rows of one kind follow each other in a table: this far on stands another kind. A prime passes over no row.
constexpr std::size_t stride = 37;

/// As many digits as the last inlet has: numbers are in the order of their texts.
std::string inlet_number(std::size_t index, std::size_t inlets) {
    const std::size_t digits = std::to_string(inlets).size();
    const std::string number = std::to_string(index + 1);
    return "I-" + std::string(digits - number.size(), '0') + number;
}

/// The area that gives a discharge by the rational method, of acres, at the coefficient and intensity below.
std::string area_of(const std::string& discharge) {
    return platform::format_number(platform::read_number(discharge).number / (0.75 * 6.0), "0.00");
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

void add_inlet(platform::Connection& connection, std::size_t index, std::size_t inlets) {
    auto& inlet = engine::open_inlet;
    describe_place(inlet, index);
    inlet.load(Column::INLET_NUMBER, inlet_number(index, inlets));
    inlet.load(Column::PREINLET1, index % 10 == 9 ? inlet_number(index - 1, inlets) : "");
    connection.execute(insert_statement(inlet));
}

}  // namespace

void describe_place(engine::InletRecord& inlet, std::size_t index) {
    const bool right = index % 2 == 0;
    inlet.load(Column::PROJECT_ID, "P-1");
    inlet.load(Column::ROADWAY, "County Road 12");
    inlet.load(Column::STATION, std::to_string(10 + index / 2) + "+50.00");
    inlet.load(Column::OFFSET, right ? "12.000" : "-12.000");
    inlet.load(Column::OFFSET_LOCATION, right ? "RIGHT" : "LEFT");
    inlet.load(Column::TOP_ELEVATION,
               platform::format_number(184.0 - static_cast<double>(index) / 4.0, "0.000"));
    inlet.load(Column::FLOW_DIRECTION, "Low Station");
    inlet.load(Column::CURB_HEIGHT, "6");
    inlet.load(Column::STORM_FREQUENCY, "10");
    inlet.load(Column::RUNOFF_COEFF, "0.75");
    inlet.load(Column::INTENSITY, "6.00");
    inlet.load(Column::RUNOFF_AREA, area_of(inlet.text(Column::DISCHARGE1)));
    if (inlet.text(Column::INLET_LOCATION) == "SUMP") {
        inlet.load(Column::RUNOFF_COEFF2, "0.75");
        inlet.load(Column::INTENSITY2, "6.00");
        inlet.load(Column::RUNOFF_AREA2, area_of(inlet.text(Column::DISCHARGE2)));
    }
}

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
        add_inlet(connection, index, inlets);
    }
    connection.execute("COMMIT");
}

}  // namespace gullymark::tools
