#pragma once

#include <functional>
#include <string>
#include <string_view>

class QKeyEvent;
class QLineEdit;

namespace gullymark::shell {

/// What of the user's input goes into a field whose text is `whole`, in place of its part `selected`.
struct InputFilter {
    /// The key that counts, 0 for none. Enter is 13; keys below 32 but Enter are not asked about.
    std::function<char32_t(char32_t key, std::string_view whole, std::string_view selected)> key;
    /// What counts of a text that comes at once: pasted, dropped, from an input method.
    std::function<std::string(std::string_view incoming, std::string_view whole, std::string_view selected)>
        text;

    explicit operator bool() const { return key && text; }
};

/// True when a key may go into `line`.
bool takes_key(const InputFilter& filter, const QKeyEvent& press, const QLineEdit& line);

/// Keeps what the user puts in to the filter, and what then counts to `limit` characters in all. Undo stays as it is,
/// and so does what the program itself puts in.
void filter_incoming_text(QLineEdit& line, const InputFilter& filter, int limit);

}  // namespace gullymark::shell
