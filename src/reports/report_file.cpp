#include "reports/report_file.h"

#include "platform/failure.h"
#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/project_copy.h"
#include "reports/cell_steps.h"
#include "store/project_session.h"

namespace gullymark::reports {

using platform::BoxKind;
using platform::printDlg;

std::optional<std::string> choose_target(const ReportFile& report) {
    printDlg.file_name = "";
    printDlg.filter = report.filter;
    printDlg.initial_folder = store::dialog_start_folder();
    printDlg.title = report.title;
    // A cancel leaves the name empty, also where it is an error.
    platform::ignore_failure([] { printDlg.show_save(); });
    std::string target = printDlg.file_name;
    if (target.empty() || target == "*.xls") {
        platform::tell("No File Name selected!", BoxKind::warning);
        return std::nullopt;
    }
    if (!store::may_overwrite(target)) {
        return std::nullopt;
    }
    return target;
}

void fill_copy_of_template(const ReportFile& report, const std::string& target,
                           const std::function<void(platform::Sheet&)>& fill) {
    platform::SheetFile file{
        .path = "",
        .sheet = report.sheet,
        .template_path = platform::join_path(platform::program_folder(), report.template_name),
        .frozen_rows = report.frozen_rows,
        .frozen_columns = report.frozen_columns};
    platform::ignore_failure([&] {
        platform::refuse_project(target);
        platform::copy_file(file.template_path, target);
        file.path = target;
    });
    platform::show_wait_pointer(true);
    platform::ignore_failure([&] {
        platform::Sheet sheet = platform::open_sheet(file);
        fill(sheet);
        platform::hand_over(file, sheet);
    });
    platform::show_wait_pointer(false);
}

}  // namespace gullymark::reports
