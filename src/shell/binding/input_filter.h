#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

class QKeyEvent;
class QLineEdit;
class QWidget;

namespace gullymark::shell {

/// What counts of a text that comes at once (pasted, dropped, from an input method) into a field whose text is `whole`,
/// in place of its part `selected`; nothing refuses it.
using TextFilter =
    std::function<std::string(std::string_view incoming, std::string_view whole, std::string_view selected)>;

/// What of the user's input goes into a field.
struct InputFilter {
    /// The key that counts, 0 for none. Enter is 13; no other key that prints nothing is asked about.
    std::function<char32_t(char32_t key, std::string_view whole, std::string_view selected)> key;
    TextFilter text;

    /// True when there is a filter: both parts are set.
    explicit operator bool() const { return key && text; }
};

/// The line in which a widget's text is typed; none for one without.
QLineEdit* line_of(QWidget& widget);

/// True when a key may go into `line`. A key that prints nothing may: it edits.
bool takes_key(const InputFilter& filter, const QKeyEvent& press, const QLineEdit& line);

/// Keeps what the user puts in to the filter; what is refused beeps. Undo stays as it is, and so does what the program
/// itself puts in.
void filter_incoming_text(QLineEdit& line, TextFilter filter);

/// For a field of any text, on one line: line ends around a text are dropped, those within it and tabs become blanks,
/// and what then goes beyond `limit` characters in all is cut, as the keys of it would be.
TextFilter one_line(std::size_t limit);

}  // namespace gullymark::shell
