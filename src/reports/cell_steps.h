#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "engine/inlet_record.h"
#include "platform/failure.h"
#include "platform/sheet.h"
#include "store/project_session.h"

/// Cell maps: what stands in which cell of a report, in the order of writing. A step gives its cell the value of its
/// source; a source that has no value leaves the cell as it is.
namespace gullymark::reports {

/// The column's text as it stands; a null clears the cell.
struct TextOf {
    engine::Column column;
};

/// The column's text as a number; without one the source has no value.
struct NumberOf {
    engine::Column column;
};

struct ProjectText {
    std::string store::ProjectSession::*text;
};

struct Literal {
    std::string_view text;
};

struct Today {};

/// Of two cells written before. An empty cell counts as 0.
struct Product {
    platform::CellPosition left;
    platform::CellPosition right;
};

struct Sum {
    platform::CellPosition left;
    platform::CellPosition right;
};

/// "YES" if the cell on the left is less than the one on the right, else "NO".
struct YesIfLess {
    platform::CellPosition left;
    platform::CellPosition right;
};

struct Place;

/// Anything else: a procedure that writes the cell, or leaves it.
struct Rule {
    void (*write)(const Place& place);  // a Failure leaves the cell as it is
};

using Source = std::variant<TextOf, NumberOf, ProjectText, Literal, Today, Product, Sum, YesIfLess, Rule>;

struct CellStep {
    platform::CellPosition cell;
    Source source;
};

/// Where a step writes and what it reads.
struct Place {
    platform::Sheet& sheet;
    platform::CellPosition cell;
    const engine::InletRecord& inlet;

    /// By the rule of platform/sheet.h.
    void write(std::string_view text) const { sheet.write(cell, text); }
    /// A number that is not finite is a Failure.
    void write(double number) const;
    /// What stands in another cell of this row; columns count from 1.
    [[nodiscard]] platform::CellValue in_column(int column) const { return sheet.read({cell.row, column}); }
    /// Failure for a null and for a text that is no number.
    [[nodiscard]] double number(engine::Column column) const;
    /// The inlet's text; empty for a null.
    [[nodiscard]] const std::string& text(engine::Column column) const { return inlet.text(column); }
};

/// Carries out the steps one by one, in the sheet's rows below row `base` (a step's row 1 is row `base` + 1). A step that
/// fails leaves its cell, and the next one runs.
void write_cells(platform::Sheet& sheet, int base, std::span<const CellStep> steps,
                 const engine::InletRecord& inlet);

}  // namespace gullymark::reports
