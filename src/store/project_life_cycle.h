#pragma once

#include <array>
#include <string>

/// A project file from its creation to its close: the commands of the main window's menu, and the steps they share.
/// A failure in create or open, a cancelled dialog included once Open has run, is told in a warning box with its
/// description and ends the flow; what was done so far stays.
namespace gullymark::store {

/// Copies the template onto the path chosen, opens it and shows the details form. A file that exists is overwritten
/// only after a Yes; on No the old file stays, and no project is open, though `projectFilePath` has its path.
void mnucreateProj_Click();

/// Opens the file chosen, upgrades an old one, and goes on to the workspace; a project without a name sees the
/// details form first. A file that is no project shows its failures in boxes and goes on the same way, empty.
void mnuopenProj_Click();

/// Closes the project and returns the menu to its start.
void mnucloseProj_Click();

/// Opens a new connection on `projectFilePath`. On failure: a plain box with the description, and the connection is
/// not open; for a file that is damaged only in part it is open for reading.
void open_database();

/// Closes the connection, forgets the project's identifier and name, and unloads the details form and the inlet
/// editor. On failure, as for a connection that is not open: a plain box, and the rest is not done.
void close_database();

/// Brings a file dated "AUGUSTL 2007" of release "1.0" to the current schema and leaves any other alone. A statement
/// that fails is passed over without a word, and the values of the session stay as read.
///
/// One of the statements names a column that no file has, so the store rejects it and the date in the file never
/// changes: the upgrade runs again at every open, and every time leaves the same file.
void upgrade_project(const std::string& major_release, const std::string& minor_release);

/// The statements of the upgrade as they go to the store, in their order.
[[nodiscard]] std::array<std::string, 4> upgrade_statements(const std::string& major_release,
                                                            const std::string& minor_release);

/// The part of `path` behind `folder`: its last (length of path - length of folder - 1) characters. A drive's root
/// ends with the separator that the rule counts once more, so it takes the name's first character.
/// Failure when the folder is longer than the path.
[[nodiscard]] std::string display_name(const std::string& path, const std::string& folder);

}  // namespace gullymark::store
