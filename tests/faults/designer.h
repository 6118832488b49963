#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/outside.h"
#include "platform/sheet.h"

/// A designer at the whole program, without its windows: what he does calls what the shell would call. He answers Yes
/// to every question, and the boxes that he sees are kept.
namespace gullymark::faults {

class Designer {
  public:
    /// Starts the program anew, with its templates beside it in `program_folder`.
    explicit Designer(const std::string& program_folder);
    ~Designer();
    Designer(const Designer&) = delete;
    Designer& operator=(const Designer&) = delete;

    std::vector<platform::Box> boxes;
    std::function<void()> on_box;  // told of each
    platform::Cells sheet;         // what the spreadsheet shows of the last report

    /// Create, overwriting what is there; the details form is left unsaved, or saved with this name.
    void create(const std::string& path, const std::string& project_name = "");
    /// Open, to the workspace. Here and in create, a project that is open is closed first.
    void open(const std::string& path);
    /// The workspace and the project are closed.
    void close();

    /// Every row: in the grid, on the form, in the listing, in the record view. `at_form` is told when the form shows a row,
    /// `at_record` when the record view does; their pages then put some fields of the form in order.
    void look_at_every_row(const std::function<void()>& at_form = nullptr,
                           const std::function<void()>& at_record = nullptr);

    // Commands on the row of the grid, which counts from 1.
    /// Types `text` into fields of the first page, solves and saves.
    void edit(int row, const std::string& text);
    /// The same with the text that `change` makes of the station.
    void edit(int row, const std::function<std::string(const std::string& station)>& change);
    /// Makes a copy of the row under a new number, solves and saves.
    void copy(int row, const std::string& number);
    void remove(int row);
    void renumber(int row, const std::string& number);
    void save_details(const std::string& project_name);
    void write_report(const std::string& path);
    void write_design_form(const std::string& path);
    void pick(int row);
    /// Names `number` as the inlet upstream on the left, solves and saves; gives it up when he is told of a failure.
    void name_previous(int row, const std::string& number);
    /// Opens the listing, or reads it again, and looks at the record of a row.
    void view(int row);

    /// True when a box has told him the store's description of a failure: no message of the program's own begins small.
    [[nodiscard]] bool told_of_failure() const;
    /// The texts of the boxes, for a report.
    [[nodiscard]] std::string what_was_told() const;

    [[nodiscard]] static int rows();
    [[nodiscard]] static std::string number_in(int row);

  private:
    /// The commands for a project are off while another is open.
    void close_for_another();

    std::string chosen_path_;
    std::string project_name_;
};

/// A project of `inlets` solved inlets "I-000001", "I-000002", ...; each names the one before it as its previous inlet.
/// Rows that were deleted leave free pages in it, as in a file that was worked in.
void make_project(const std::string& program_folder, const std::string& path, int inlets);

}  // namespace gullymark::faults
