#pragma once

#include <string>
#include <vector>

#include "review/finding.h"
#include "review/fresh_road.h"
#include "review/project.h"

/// The inlets of a project as one table: what is stored, and beside it what would be.
namespace gullymark::review {

struct TableHeading {
    std::string text;  // "Bypass"
    std::string unit;  // "cfs"; empty for a text or a pure number
    bool is_number = false;

    /// "Bypass (cfs)".
    [[nodiscard]] std::string with_unit() const { return unit.empty() ? text : text + " (" + unit + ")"; }
};

struct InletTable {
    std::vector<TableHeading> headings;
    std::vector<std::vector<std::string>>
        rows;  // one for each inlet, in the order of the file; texts as they are stored
};

/// Every column that tells who an inlet is, what comes to it, how it is built and what becomes of the water. Behind total,
/// spreads, depths, intercepted flow and bypass stand those of `fresh`. The last column names the rules that found something.
InletTable make_inlet_table(const Project& project, const std::vector<Finding>& findings,
                            const FreshRoad& fresh);

/// The table as comma-separated values (RFC 4180): headings with their units, then a line for each inlet; lines end with
/// CR LF. Bytes are those of the file. A spreadsheet would compute a text that begins with =, +, -, @, a tab or a line break
/// and is no number: an apostrophe stands before it.
std::string as_csv(const InletTable& table);

}  // namespace gullymark::review
