#pragma once

#include <chrono>
#include <compare>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// One sheet of a workbook in memory: filled cell by cell, read back as the spreadsheet would give it, and handed over
/// to the spreadsheet in one piece.
namespace gullymark::platform {

/// Rows and columns count from 1.
struct CellPosition {
    int row = 1;
    int column = 1;

    auto operator<=>(const CellPosition&) const = default;  // NOLINT(modernize-use-nullptr)
};

struct CellRange {
    CellPosition first;
    CellPosition last;
};

struct RowRange {
    int first = 1;
    int last = 1;
};

using Date = std::chrono::year_month_day;

/// What a cell holds: nothing, a text, a number or a date.
using CellValue = std::variant<std::monostate, std::string, double, Date>;

using Cells = std::map<CellPosition, CellValue>;

/// What a workbook's sheet holds as it opens. Cells without a content may be left out.
struct SheetContent {
    Cells cells;
    std::vector<CellRange> text_cells;  // the cells whose number format is text; they may overlap
};

/// What is handed over of a filled sheet: the cells written, row by row (nothing in a cell means that it was cleared),
/// and the rows that shall not part at the end of a page.
struct Filling {
    Cells cells;
    std::vector<RowRange> kept_rows;
};

/// The rule of writing a text, whatever the locale: an empty text clears the cell; a plain decimal number becomes a
/// number, shown by the cell's format, unless that format is text; every other text stays the text that it is.
///
///     plain decimal number: [blanks] [-] digits [. [digits]] [blanks], or without the digits before the point;
///     no 0 before another digit of the whole part, and no more digits than a number keeps exactly (15)
///
/// Numbers: "0.5", "-12", ".5", "3.", "1.500". Texts: "0123", "+5", "1e5", "1/2", "-", "=1+1", "1,000".
///
/// Writing outside the 65536 rows and 256 columns of a workbook is a Failure.
class Sheet {
  public:
    Sheet() = default;
    /// A sheet that holds `content` already; nothing counts as written.
    explicit Sheet(SheetContent content) : content_(std::move(content)) {}

    /// By the rule above.
    void write(CellPosition cell, std::string_view text);
    /// The number as it is, whatever the cell's format.
    void write(CellPosition cell, double number);
    /// The date as it is, whatever the cell's format.
    void write(CellPosition cell, Date date);

    /// What was written last, or else what the workbook holds.
    [[nodiscard]] CellValue read(CellPosition cell) const;

    /// No page ends between these rows.
    void keep_together(RowRange rows) { filling_.kept_rows.push_back(rows); }

    /// All that was written and told so far, for the spreadsheet application.
    [[nodiscard]] const Filling& filling() const { return filling_; }

  private:
    [[nodiscard]] bool is_text_cell(CellPosition cell) const;

    SheetContent content_;
    Filling filling_;
};

/// A cell's value as a number: nothing is 0, a text counts by the grammar of a number; any other text, and a date,
/// is a Failure.
[[nodiscard]] double cell_number(const CellValue& value);

/// A cell's value as a text, a number with up to 15 digits.
[[nodiscard]] std::string cell_text(const CellValue& value);

/// Does `left` come before `right`? Numbers and texts that read as numbers compare as numbers, nothing as 0; every
/// other text comes behind all of these, and texts compare by their characters.
[[nodiscard]] bool is_less(const CellValue& left, const CellValue& right);

}  // namespace gullymark::platform
