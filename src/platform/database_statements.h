#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Readers of statement texts, for the three places where the engine's dialect is not that of the statements.
/// They look only as far as they must; what is wrong with a statement the engine tells itself.
namespace gullymark::platform {

/// "ALTER TABLE t ADD a TEXT(3), b TEXT(10)" as one statement for each column, in order: the engine adds one at a
/// time. Any other statement comes back as it is.
std::vector<std::string> split_alter(std::string_view statement);

/// "SELECT list FROM rest" with the keys of the rows in place of the list, in one spelling. Nothing for another
/// statement.
std::optional<std::string> keys_statement(std::string_view select);

/// The condition of a search: COLUMN = 'text', where the name may stand in [brackets] and a doubled quote mark
/// within the text stands for one.
struct Condition {
    std::string column;
    std::string text;

    bool operator==(const Condition&) const = default;
};

/// Nothing for any other form.
std::optional<Condition> read_condition(std::string_view condition);

}  // namespace gullymark::platform
