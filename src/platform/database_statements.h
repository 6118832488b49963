#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Readers of statement texts, for the three places where the engine's dialect is not that of the statements.
/// They look only as far as they must; what is wrong with a statement the engine tells itself.
namespace gullymark::platform {

/// True for a definition of the file's schema that may stand in a project file: a table or an index of plain columns,
/// or a trigger, which never runs. Not for a view, a virtual table, a table without keys of its own, a column that
/// hides them ("rowid"), or anything that the engine computes or deletes with: generated columns, checks, default
/// formulas, other orders of texts, rules for conflicts, indexes on formulas or on some rows. Comments are passed over.
/// An empty text, as the engine's own indexes have it, is plain.
bool is_plain_definition(std::string_view definition);

/// "ALTER TABLE t ADD a TEXT(3), b TEXT(10)" as one statement for each column, in order: the engine adds one at a
/// time. Any other statement comes back as it is.
std::vector<std::string> split_alter(std::string_view statement);

/// "SELECT list FROM rest" with the keys of the rows in place of the list, in one spelling. Nothing for another
/// statement.
std::optional<std::string> keys_statement(std::string_view select);

/// True when "--" or "/*" stands outside of quote marks. The statements' dialect knows no comments; the engine's would
/// take what follows, the condition of an update among it, for one.
bool has_comment(std::string_view statement);

/// The condition of a search: COLUMN = 'text', where the name may stand in [brackets]. The text is all that stands
/// between the first quote mark and the last, further quote marks among it as they are.
struct Condition {
    std::string column;
    std::string text;

    bool operator==(const Condition&) const = default;
};

/// Nothing for any other form.
std::optional<Condition> read_condition(std::string_view condition);

}  // namespace gullymark::platform
