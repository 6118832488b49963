#pragma once

#include <optional>
#include <string>

/// The run-wide memory of the open project. There is no other copy of its name or path.
namespace gullymark::store {

struct ProjectSession {
    std::string projectFilePath;   // full path; stays after a close, until the next create or open
    std::string workingDirectory;  // the folder that the last file dialog left; empty before the first
    std::string projectId;
    std::string projectName;  // empty: a project without details, or no project
    std::string projectCounty;
    std::string projectState;
    std::string projectDesigner;
    std::string projectUnits;                 // platform::english_units, or any other text for metric
    std::string productName;                  // "GULLYMARKAL" in a file of this product
    std::optional<std::string> majorRelease;  // null as the file has it
    std::string releaseDate;
    std::string targetMajorRelease;  // the release that an upgrade writes, set at the main window's load
    std::string targetMinorRelease;
    std::string targetReleaseDate;
    bool detailsUpdateMode = false;      // the details form edits the row that exists
    std::string ReferencingInletNumber;  // the inlet that `CheckInletUsage` found
};

extern ProjectSession session;

/// Where a file dialog starts: `workingDirectory`, or the program's own folder while that is empty.
[[nodiscard]] std::string dialog_start_folder();

/// True where no file has that path, or the user lets it be overwritten.
[[nodiscard]] bool may_overwrite(const std::string& path);

}  // namespace gullymark::store
