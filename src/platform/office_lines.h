#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/sheet.h"

/// The lines in which the program and `gullymark-office` talk. A line is fields parted by tabs and ends with a line
/// feed; within a field a tab, a line feed, a carriage return and a backslash stand as \t, \n, \r and \\ .
/// Texts are UTF-8, rows and columns count from 1, numbers follow the grammar of number_text.h.
///
/// The program asks, and reads the answer to the last line before it asks on:
///
///     limit   SECONDS                       how long the answer to `open` or `show` may take (30)
///     open    PATH  first|active  TEMPLATE  open a workbook, unseen, at its first sheet or the one it opens with; where
///                                           PATH is empty, open already, or opened by another user, a new one without
///                                           a name, of the content of TEMPLATE if that is given
///     number  ROW COLUMN NUMBER             to be put into a cell; nothing is written before `show`
///     text    ROW COLUMN TEXT               the same
///     date    ROW COLUMN YEAR MONTH DAY     the same
///     empty   ROW COLUMN                    the same: the cell is emptied
///     keep    FIRST LAST                    no page ends between these rows
///     freeze  ROWS COLUMNS                  as many stay in sight while the rest scrolls
///     show                                  write all cells, then show the workbook to the user
///
/// An end of the questions before `show` closes the workbook, and the office too where it was started for it.
///
/// The answers:
///
///     number  ROW COLUMN NUMBER             to `open`: what a cell that is not empty holds
///     text    ROW COLUMN TEXT               the same
///     formatted_as_text  ROW COLUMN ROW COLUMN   to `open`: first and last cell of a range with a text's format
///     opened                                to `open`, last
///     shown                                 to `show`
///     failed  DESCRIPTION                   to anything; nothing follows
///
/// Tests may ask for more:
///
///     profile FOLDER                        use an office with a profile and a pipe of its own
///     headless                              start the office without windows
///     save    PATH                          after `show`: save the workbook as .xls; the answer is `done`
///     keep_name                             after `show`: save the workbook under its own name, as a user does
///     close                                 after `show`: close the workbook; the answer is `done`
namespace gullymark::platform {

/// The fields as one line with its line feed.
std::string join_line(const std::vector<std::string>& fields);

/// The fields of a line, which is given without its line feed. A backslash before any other character, or at the end,
/// stands for itself.
std::vector<std::string> split_line(std::string_view line);

/// A line for each cell. A number that is none (infinite) has no line.
std::string cell_lines(const Cells& cells);

/// A line for each cell and each range.
std::string content_lines(const SheetContent& content);

/// Adds what a line of `cell_lines` or `content_lines` tells; false when it is another line. Throws Failure when it
/// cannot be read.
bool read_content_line(const std::vector<std::string>& fields, SheetContent& content);

}  // namespace gullymark::platform
