#include "platform/database_statements.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace gullymark::platform {
namespace {

constexpr std::string_view blanks = " \t\r\n";

bool is_name_letter(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9') || letter == '_' || letter == '$' || (letter & 0x80) != 0;
}

char capital(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool same_word(std::string_view word, std::string_view upper_case) {
    return std::ranges::equal(word, upper_case, {}, capital);
}

/// Goes through a statement piece by piece: a word, a quoted text or name with its quote marks, or one other
/// character. Blanks between are skipped.
struct Pieces {
    std::string_view text;
    std::size_t at = 0;
    bool passes_comments = false;  // as if they were blanks

    /// The next piece, which stays the next one; empty at the end.
    std::string_view peek() {
        at = std::min(text.find_first_not_of(blanks, at), text.size());
        while (passes_comments && comment_length() > 0) {
            at = std::min(text.find_first_not_of(blanks, at + comment_length()), text.size());
        }
        return text.substr(at, piece_length());
    }

    std::string_view take() {
        const auto piece = peek();
        at += piece.size();
        return piece;
    }

    bool take_word(std::string_view upper_case) {
        if (!same_word(peek(), upper_case)) {
            return false;
        }
        take();
        return true;
    }

    /// Of the comment that begins here, its end mark included; 0 when none does.
    [[nodiscard]] std::size_t comment_length() const {
        const auto begin = text.substr(at, 2);
        if (begin != "--" && begin != "/*") {
            return 0;
        }
        const std::string_view end_mark = begin == "--" ? "\n" : "*/";
        const auto end = text.find(end_mark, at + 2);
        return end == std::string_view::npos ? text.size() - at : end + end_mark.size() - at;
    }

  private:
    [[nodiscard]] std::size_t piece_length() const {
        if (at == text.size()) {
            return 0;
        }
        static constexpr std::array<std::string_view, 4> quote_marks{"''", "\"\"", "``", "[]"};
        for (const auto marks : quote_marks) {
            if (text[at] == marks.front()) {
                const auto end = text.find(marks.back(), at + 1);
                return end == std::string_view::npos ? text.size() - at : end + 1 - at;
            }
        }
        const auto word = text.substr(at);
        const auto end = std::ranges::find_if_not(word, is_name_letter);
        return std::max<std::size_t>(1, static_cast<std::size_t>(end - word.begin()));
    }
};

/// The name that a piece stands for, without brackets or quote marks; nothing when it is no name.
std::optional<std::string> name_of(std::string_view piece) {
    if (piece.size() > 2 &&
        ((piece.front() == '[' && piece.back() == ']') || (piece.front() == '"' && piece.back() == '"'))) {
        return std::string(piece.substr(1, piece.size() - 2));
    }
    if (piece.empty() || !is_name_letter(piece.front())) {
        return std::nullopt;
    }
    return std::string(piece);
}

/// True for a word or quoted text that says "rowid", by which the keys of the rows go.
bool hides_the_key(std::string_view piece) {
    if (piece.size() > 2 && !is_name_letter(piece.front())) {
        piece = piece.substr(1, piece.size() - 2);
    }
    return same_word(piece, "ROWID");
}

/// How a piece changes the depth of parentheses.
int nesting(std::string_view piece) {
    return piece == "(" ? 1 : piece == ")" ? -1 : 0;
}

/// What is left, one blank for any number of them and words in capital letters: outside of quote marks the engine
/// does not tell small letters from capitals.
std::string in_one_spelling(Pieces& pieces) {
    std::string text;
    for (auto before = pieces.at; !pieces.peek().empty(); before = pieces.at) {
        text += pieces.at == before ? "" : " ";
        const auto piece = pieces.take();
        if (is_name_letter(piece.front())) {
            std::ranges::transform(piece, std::back_inserter(text), capital);
        } else {
            text += piece;
        }
    }
    return text;
}

/// The columns of a table: nothing that the engine would compute or delete with.
bool is_plain_table(Pieces& pieces) {
    pieces.take();
    int depth = nesting(pieces.take());
    while (depth > 0 && !pieces.peek().empty()) {
        const auto piece = pieces.take();
        const bool computes =
            same_word(piece, "AS") || same_word(piece, "CHECK") || same_word(piece, "COLLATE") ||
            (same_word(piece, "DEFAULT") && pieces.peek() == "(") ||
            (same_word(piece, "ON") && same_word(pieces.peek(), "CONFLICT")) || hides_the_key(piece);
        if (computes) {
            return false;
        }
        depth += nesting(piece);
    }
    return pieces.peek().empty() && depth == 0;
}

/// Columns by their names, up or down.
bool is_plain_index(Pieces& pieces) {
    pieces.take();
    if (!pieces.take_word("ON") || !name_of(pieces.take()) || pieces.take() != "(") {
        return false;
    }
    while (name_of(pieces.peek())) {
        if (same_word(pieces.take(), "COLLATE")) {
            return false;
        }
        if (pieces.peek() == ",") {
            pieces.take();
        }
    }
    return pieces.take() == ")" && pieces.peek().empty();
}

}  // namespace

bool is_plain_definition(std::string_view definition) {
    // The engine takes this mark for a blank.
    if (definition.find("\xef\xbb\xbf") != std::string_view::npos) {
        return false;
    }
    Pieces pieces{.text = definition, .passes_comments = true};
    if (pieces.peek().empty()) {
        return true;
    }
    if (!pieces.take_word("CREATE")) {
        return false;
    }
    const bool unique = pieces.take_word("UNIQUE");
    if (pieces.take_word("INDEX")) {
        return is_plain_index(pieces);
    }
    return !unique && (pieces.take_word("TRIGGER") || (pieces.take_word("TABLE") && is_plain_table(pieces)));
}

std::vector<std::string> split_alter(std::string_view statement) {
    Pieces pieces{statement};
    if (!pieces.take_word("ALTER") || !pieces.take_word("TABLE") || !name_of(pieces.take()) ||
        !pieces.take_word("ADD")) {
        return {std::string(statement)};
    }
    const std::string start = std::string(statement.substr(0, pieces.at)) + " ";
    std::vector<std::string> statements;
    pieces.peek();
    std::size_t begin = pieces.at;
    int depth = 0;
    while (!pieces.peek().empty()) {
        const auto piece = pieces.take();
        depth += nesting(piece);
        if (piece == "," && depth == 0) {
            statements.push_back(start + std::string(statement.substr(begin, pieces.at - 1 - begin)));
            pieces.peek();
            begin = pieces.at;
        }
    }
    statements.push_back(start + std::string(statement.substr(begin)));
    return statements;
}

std::optional<std::string> keys_statement(std::string_view select) {
    Pieces pieces{select};
    if (!pieces.take_word("SELECT")) {
        return std::nullopt;
    }
    int depth = 0;
    while (!pieces.peek().empty()) {
        if (depth == 0 && same_word(pieces.peek(), "FROM")) {
            return "SELECT rowid " + in_one_spelling(pieces);
        }
        depth += nesting(pieces.take());
    }
    return std::nullopt;
}

bool has_comment(std::string_view statement) {
    Pieces pieces{statement};
    while (!pieces.peek().empty()) {
        if (pieces.comment_length() > 0) {
            return true;
        }
        pieces.take();
    }
    return false;
}

std::optional<Condition> read_condition(std::string_view condition) {
    Pieces pieces{condition};
    auto column = name_of(pieces.take());
    if (!column || pieces.take() != "=") {
        return std::nullopt;
    }
    pieces.peek();
    const auto end = condition.find_last_not_of(blanks) + 1;
    const auto quoted = condition.substr(pieces.at, end - std::min(end, pieces.at));
    if (quoted.size() < 2 || quoted.front() != '\'' || quoted.back() != '\'') {
        return std::nullopt;
    }
    return Condition{.column = *column, .text = std::string(quoted.substr(1, quoted.size() - 2))};
}

}  // namespace gullymark::platform
