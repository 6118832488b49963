#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <string>

#include "platform/office/office.h"
#include "platform/spreadsheet.h"

/// One workbook that the office has open, and the one sheet of it that is filled. All failures are
/// platform::Failure, or an exception of the office itself.
namespace gullymark::office {

struct Workbook {
    com::sun::star::uno::Reference<com::sun::star::frame::XModel> model;
    com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheet> sheet;
};

/// Opens an .xls workbook, whatever its extension, unseen, without macros and without a look at links. One that cannot
/// be opened under its name (there is no such file or name, the office has it open already, another user has it open, it
/// can only be read) is left alone: a new workbook without a name takes its place, of the content of `template_path`.
/// After an exception `workbook` may be open.
void open_workbook(const Office& office, const platform::SheetFile& file, Workbook& workbook);

/// The cells of the sheet that are not empty, a formula with its result, and the cells formatted as text.
platform::SheetContent read_content(const Workbook& workbook);

/// Writes the cells; `kept` are those that are not empty, and stay as they are unless written. Formats stay, but a date
/// gets the office's own format of a date where its cell has none.
void write_cells(const Workbook& workbook, const platform::Cells& cells, const platform::Cells& kept);

/// Shows the workbook to the user, with the sheet in front; from then on it is the user's.
void show_workbook(const Office& office, const Workbook& workbook);

/// Saves it under its own name. One without a name is an exception of the office.
void save(const Workbook& workbook);

/// Saves it as .xls under another path, still open and unsaved under its own.
void save_copy(const Workbook& workbook, const std::string& path);

/// Closes it without a question. One that is not open stays so.
void close_workbook(Workbook& workbook);

}  // namespace gullymark::office
