#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/text_rows.h"

/// All rows of a query with their nulls, for who reads a file whole and once.
namespace gullymark::platform {

/// Hands over each row of a SELECT, in the order of the statement, with the names of its columns. All are of one moment.
/// `take` leaves the connection alone. Throws Failure: what was handed over before it is then not all there is.
void read_all_rows(const Connection& connection, const std::string& statement,
                   const std::function<void(const std::vector<std::string>& columns, Row row)>& take);

}  // namespace gullymark::platform
