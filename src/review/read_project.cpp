#include "review/read_project.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/all_rows.h"
#include "platform/database.h"
#include "platform/failure.h"
#include "platform/number_text.h"

namespace gullymark::review {
namespace {

using platform::Connection;
using platform::Failure;
using platform::Row;
using Columns = std::vector<std::string>;

/// Nothing for a null, or a column that the file lacks.
std::optional<std::string> value_of(const Columns& columns, const Row& row, std::string_view name) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i] == name) {
            return row[i];
        }
    }
    return std::nullopt;
}

/// The first row counts, as in the program that designs.
void read_details(const Connection& connection, Project& project) {
    std::optional<std::string> units;
    bool found = false;
    read_all_rows(connection, "SELECT * FROM PROJECT ORDER BY PROJECT_ID",
                  [&](const Columns& columns, const Row& row) {
                      if (std::exchange(found, true)) {
                          return;
                      }
                      const auto text = [&](std::string_view name) {
                          return value_of(columns, row, name).value_or("");
                      };
                      project.id = text("PROJECT_ID");
                      project.name = text("PROJECT_NAME");
                      project.county = text("COUNTY");
                      project.state = text("STATE");
                      project.designer = text("DESIGNER");
                      units = value_of(columns, row, "UNITS");
                  });
    if (!units && !project.inlets.empty()) {
        throw Failure(found ? "the details of the project hold no units"
                            : "no project details are saved, and so no units of its inlets");
    }
    project.units = units.value_or("");
}

/// A record is large: a list that grows would copy all of them over and over.
void make_room(const Connection& connection, Project& project) {
    read_all_rows(connection, "SELECT count(*) FROM INLET", [&](const Columns& /*columns*/, const Row& row) {
        project.inlets.reserve(static_cast<std::size_t>(platform::read_number(row[0].value_or("")).number));
    });
}

void read_inlets(const Connection& connection, Project& project) {
    make_room(connection, project);
    std::vector<std::optional<engine::Column>> places;
    read_all_rows(connection, "SELECT * FROM INLET ORDER BY rowid", [&](const Columns& columns, Row row) {
        if (places.empty()) {
            for (const auto& column : columns) {
                places.push_back(engine::column_named(column));
            }
        }
        auto& inlet = project.inlets.emplace_back();
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (places[i]) {
                inlet.load(*places[i], std::move(row[i]));
            }
        }
    });
}

}  // namespace

Project read_project(const std::string& path) {
    Connection connection;
    connection.open_to_read(path);
    try {
        Project project;
        read_inlets(connection, project);
        read_details(connection, project);
        return project;
    } catch (const Failure& failure) {
        throw Failure(std::string(failure.what()) + " - " + path);
    }
}

}  // namespace gullymark::review
