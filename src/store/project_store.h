#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/database.h"
#include "platform/row_set.h"

/// The open project file and the statements that reach it. Each statement is sent as it stands: a number between its
/// quote marks is joined in unchanged, so one that holds a quote mark breaks the statement, and its sender tells the
/// failure.
namespace gullymark::store {

/// The one connection of the run, made anew at every open of a project.
struct ProjectStore {
    platform::Connection connection;
};

extern ProjectStore project_store;

inline constexpr const char* select_project = "SELECT * from PROJECT Order by PROJECT_ID";
inline constexpr const char* select_inlets = "SELECT * FROM INLET ORDER BY INLET_NUMBER";
inline constexpr const char* select_carryover =
    "select INLET_NUMBER, PREINLET1, PREINLET2, QCARRY from INLET Order by INLET_NUMBER";
inline constexpr const char* select_grid =
    "SELECT INLET_NUMBER AS [INLET_ID],STATION, OFFSET  FROM INLET ORDER BY INLET_NUMBER";

/// All columns of the inlet of that number.
[[nodiscard]] std::string select_inlet(std::string_view number);

/// The row that has `number` as its INLET_NUMBER.
[[nodiscard]] std::string select_number_usage(std::string_view number);
/// The rows that have `number` as their PREINLET1.
[[nodiscard]] std::string select_preinlet1_usage(std::string_view number);
/// The rows that have `number` as their PREINLET2.
[[nodiscard]] std::string select_preinlet2_usage(std::string_view number);

/// Gives an inlet a new number, first in its own row, then in the rows that name it as a previous inlet.
[[nodiscard]] std::array<std::string, 3> renumber_inlet(std::string_view new_number,
                                                        std::string_view old_number);

/// Goes to the first of the rows, which have a column INLET_NUMBER, with that number; behind the last where none has it.
/// The number is joined into the condition unchanged, as into a statement. Throws Failure.
void find_inlet(platform::RowSet& inlets, std::string_view number);

/// What is told of a number that no inlet has.
[[nodiscard]] std::string not_in_project(std::string_view number);

/// True when a row has `inlet_number` in the column named by `word`: "INLET_NUMBER", "PREINLET1" or "PREINLET2". Any
/// other word finds nothing. The two previous-inlet words also set `session.ReferencingInletNumber` to the
/// INLET_NUMBER of the first row found, "" when there is none. An empty number is no inlet's: a row that has it as its
/// previous inlet has none.
/// On failure: a plain box with its description, and false.
bool CheckInletUsage(std::string_view inlet_number, std::string_view word);

enum class InletUsage { no_row, a_row, unread };

/// The same for who must not take a file that could not be read for one without such a row: `unread`, after the box. A
/// number that breaks the statement is nobody's that could be asked for, and reads as `no_row`.
InletUsage find_inlet_usage(std::string_view inlet_number, std::string_view word);

}  // namespace gullymark::store
