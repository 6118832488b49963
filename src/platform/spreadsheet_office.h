#pragma once

#include <chrono>
#include <string>
#include <vector>

/// The real spreadsheet: the user's office, reached by the small program `gullymark-office`, so that this one starts
/// and works where no office is installed, and goes on when an office ends badly. office_lines.h tells how they talk.
namespace gullymark::platform {

struct OfficeSettings {
    /// The small program's path.
    std::string program;
    /// How long opening, and then filling and showing, may take.
    std::chrono::milliseconds limit = std::chrono::seconds(30);
    /// What a test asks for, as lines of fields: before the workbook is opened, and after it was shown.
    std::vector<std::vector<std::string>> first_questions;
    std::vector<std::vector<std::string>> last_questions;
};

/// Fills the table `spreadsheet`. While it waits, `outside.keep_painting` is called. What fails is a Failure, at the
/// latest some seconds after the limit; then the office shows nothing, and one that was started for it ends.
void use_office(OfficeSettings settings);

}  // namespace gullymark::platform
