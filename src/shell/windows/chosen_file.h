#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QByteArray>

/// A file that is written where the user chooses, beside the project.
namespace gullymark::shell {

/// A kind of file, in the words of the dialog and of the box that tells a failure.
struct FileKind {
    const char* name;       // "PDF"
    const char* extension;  // "pdf"
};

inline constexpr FileKind pdf_file{"PDF", "pdf"};
inline constexpr FileKind csv_file{"CSV", "csv"};

/// Asks where a file is saved, and whether it may be replaced; nothing where the user chose none.
std::optional<std::string> choose_file_to_write(const FileKind& kind, const std::string& title);

/// Writes what `make` gives, whole or not at all; nothing where it gives nothing. A box tells why it was not written. A project is
/// never written over.
void write_chosen_file(const FileKind& kind, const std::string& target,
                       const std::function<std::optional<QByteArray>()>& make);

}  // namespace gullymark::shell
