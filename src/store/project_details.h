#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/menu.h"
#include "platform/row_set.h"
#include "platform/screen.h"
#include "store/help.h"

/// The modal form `frmProject`, on which the user enters or changes the one row of `PROJECT`, without a toolkit.
///
/// Binding: attaching copies the columns of the current row into the texts of the eight fields, null as empty. From
/// then on the fields hold what the user typed, and the first edit sets the changed flag. A save writes the texts of
/// all eight fields into the row, an empty text as an empty text and not as null; a cancel reads them again.
namespace gullymark::store {

struct ProjectDetails {
    platform::Field project_id;
    platform::Field project_name;
    platform::Field description;
    platform::Field location;
    platform::Field county;
    platform::Field state;
    platform::Field designer;
    platform::Field units;
    platform::Field mnuprojcancel;
    platform::RowSet brookprojrs;
    bool adding = false;    // between `addnewproject` and a save
    bool changed = false;   // from the first edit of the row
    bool read = false;      // the fields show what the file holds: they may be stored over it
    bool row_read = false;  // the row of the file, or that there is none
    bool loaded = false;    // a hidden form stays loaded and keeps its texts
    bool visible = false;
};

extern ProjectDetails frmProject;

inline constexpr std::string_view details_title = "Project";
inline constexpr std::string_view details_frame_caption = "Project Details";

enum class EntryKind { text, list_with_typing, list };

/// One field of the form: its name on the drawing, its column, its label, how many characters can be typed
/// (0: any number), and what kind of field it is.
struct DetailsField {
    std::string_view name;
    std::string_view column;
    std::string_view label;
    std::size_t limit = 0;
    EntryKind kind = EntryKind::text;
    platform::Field ProjectDetails::*field = nullptr;
};

inline constexpr std::array<DetailsField, 8> details_fields{{
    {"project_id", "PROJECT_ID", "PROJECT ID", 20, EntryKind::text, &ProjectDetails::project_id},
    {"project_name", "PROJECT_NAME", "PROJECT NAME", 50, EntryKind::text, &ProjectDetails::project_name},
    {"description", "DESCRIPTION", "DESCRIPTION", 200, EntryKind::text, &ProjectDetails::description},
    {"location", "LOCATION", "LOCATION", 50, EntryKind::text, &ProjectDetails::location},
    {"county", "COUNTY", "COUNTY/CITY", 0, EntryKind::list_with_typing, &ProjectDetails::county},
    {"state", "STATE", "STATE", 0, EntryKind::text, &ProjectDetails::state},
    {"designer", "DESIGNER", "DESIGNED BY", 25, EntryKind::text, &ProjectDetails::designer},
    {"units", "UNITS", "UNITS", 0, EntryKind::list, &ProjectDetails::units},
}};

/// Warns that the project has no details yet.
void tell_missing_details();

/// Shows the form, modal, loading it first if it is not loaded; returns when it was hidden or unloaded.
void show_details_form();

/// Loads the form if it is not loaded: fills the lists, reads the row and attaches the fields to it, or starts a new
/// row when the file has none. The identifier and the units can be entered only in a new row.
void load_details_form();

/// Opens the form for the row that exists: Cancel is on, the identifier and the units are off and gray, and the units
/// shown become those of the session.
void lock_existing_row();

/// Hides the form if it is shown, releases its row set and forgets its texts.
void unload_details_form();

/// Reads the row of `PROJECT` into the session. A null in any column but `PRODUCT_NAME` and `MAJOR_RELEASE` is a
/// failure: a plain box with its description, and the session keeps that value and all later ones. A row that cannot be
/// read is told too; `frmProject.row_read` is then false.
void get_project_records();

/// Puts the columns of the current row into the eight fields; empties them when there is no row.
void attach_project_datasource();

/// Starts a new row with its start values.
void addnewproject();

/// The row is about to change; reason 11 is its first change and sets the changed flag, another reason does nothing.
void brookprojrs_WillChangeRecord(int reason);

/// The user typed `text` into `field` or picked it: the one entry for every edit. Characters beyond the limit are
/// dropped. A text of `units` that is not in its list is refused in a box and becomes the first entry.
void edit_details_field(const DetailsField& field, std::string_view text);

/// Refuses an empty state, then an empty identifier. Otherwise writes the row, copies it to the session, and goes on
/// to the workspace.
void mnuprojsave_Click();

/// Drops the changes and reads the row again; no failure is told.
void mnuprojcancel_Click();

/// Leaves the form without saving; asks first if the row was changed. Closing the form's window comes here too.
void mnuprojexit_Click();

using DetailsMenuItem = platform::MenuItem<ProjectDetails>;

inline constexpr std::array<DetailsMenuItem, 7> details_menu{{
    {"mnuProjFile", "&File", ""},
    {"mnuprojsave", "&Save", "mnuProjFile", mnuprojsave_Click},
    {"mnuprojcancel", "&Cancel", "mnuProjFile", mnuprojcancel_Click, &ProjectDetails::mnuprojcancel},
    {"mnuprojexit", "&Exit", "mnuProjFile", mnuprojexit_Click},
    {"mnuprojhelp", "&Help", ""},
    {"mnuprojsubhelp", "&Help", "mnuprojhelp", show_help},
    {"mnuprojabout", "&About Tarnel Brook", "mnuprojhelp", show_about_box},
}};

}  // namespace gullymark::store
