#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/table.h"
#include "engine/inlet_record.h"
#include "review/project.h"

/// What an inlet would be with each standard of the table of its type and location. Everything is solved on copies, and
/// nothing is stored.
///
/// A standard is tried as a pick would write it. The tables are in feet; in a metric project the pick writes the same
/// numbers, which then count as meters, and so they do here. There is no table for a slotted inlet: the inlet itself is
/// then the only row.
namespace gullymark::review {

/// How the spreads of an inlet stand to the allowable one. Those that count: on a grade the spread at the opening; in a
/// sump that and the spread in the gutter of the larger flow. A spread of 0 while water comes tells nothing and does not
/// count. An inlet in a ditch has none.
enum class Verdict : unsigned char {
    within,   // each spread is at most the allowable one
    beyond,   // one is greater
    unknown,  // no spread, or no allowable one
};

/// A runoff area that was searched.
struct LargestArea {
    enum class Kind : unsigned char {
        none,       // there is nothing to search, or the smallest area is too much already
        found,      // `left` is within and 0.0001 more is beyond
        unlimited,  // 100,000 Ac or Hc are still within
    };
    Kind kind = Kind::none;
    std::string left;   // with four decimals, as the form has it; of the only side on a grade
    std::string right;  // of the right side of a sump where that grows with the left one
};

struct SizedRow {
    std::vector<std::string> fields;           // as the table prints them; of the inlet itself its own
    const catalogue::Row* standard = nullptr;  // null: the inlet as it stands
    bool solved = false;
    std::string told;             // what the solve shows in boxes
    std::string spread;           // OPENSPREAD, ft or m
    std::string gutter_spread;    // GUTTERSPREAD, ft or m; in a sump
    std::string depth;            // at the curb or in the ditch; in a sump at the inlet; in or mm
    std::string intercepted;      // QINT, cfs or cms
    std::string bypass;           // QCARRY, cfs or cms; empty in a sump
    std::optional<double> share;  // QINT / TOTAL_DISCHARGE
    Verdict verdict = Verdict::unknown;
    LargestArea area;
    std::string first_distance;  // ft or m, one decimal, rounded down; empty where there is none
    std::string next_distance;
};

struct Sizing {
    const catalogue::Table* table = nullptr;  // null: there is none for this type and location
    bool in_sump = false;
    bool has_spread = false;     // false for an inlet in a ditch
    bool has_area = false;       // a discharge follows from a runoff area, which can be searched
    std::vector<SizedRow> rows;  // the inlet itself, then the standards in the order of the table
};

/// Solves the inlet and each row of its table.
///
/// The largest runoff area is searched over RUNOFF_AREA with its four decimals: discharge = intensity x area x coefficient
/// with three decimals, total = the stored shares with that discharge in place of the stored one, then a solve. It is the
/// largest area up to which everything is within: areas that grow by an eighth are tried until one is beyond (that the
/// spread grows with the area is not assumed), a bisection between the last two follows, and what it ends with is within
/// while 0.0001 more is beyond. In a sump both areas grow in the proportion in which they are stored; a side whose
/// discharge is typed, or that has no area, stays as it is, and the other one alone grows. Where every discharge is typed
/// there is none.
///
/// How far apart the inlets of a row may stand on this grade, with `area_for_length` of runoff area for each ft or m of
/// road, is told in two distances: `first_distance` for the first inlet, to which nothing is carried over, and
/// `next_distance` for all inlets of an endless row, each of which takes the bypass of the one before:
///
///     Q(1) = q x d,   Q(k + 1) = q x d + bypass(Q(k)),   each Q(k) within;   q = intensity x coefficient x area_for_length
///
/// d is the largest distance for which that holds until the flow repeats itself, all flows rounded as the form rounds them.
/// Where bypass grows with the flow that is the fixed point Q = q x d + bypass(Q), so d = intercepted(Q) / q at the largest
/// Q that is within. Neither is worked out in a sump, in a ditch, without a number above 0, and for a typed discharge.
Sizing size_inlet(const engine::InletRecord& inlet, const std::string& units,
                  std::optional<double> area_for_length);

/// Runoff area for each ft or m of road: that of the inlet over the distance to its previous inlet on the left.
struct RunoffForLength {
    double area = 0;       // Ac / ft or Hc / m
    std::string sentence;  // "0.2000 Ac over 250 ft from inlet 3"
};

/// Nothing where the stations of both cannot be read or are the same, the previous inlet is none, or the area is not above
/// 0.
std::optional<RunoffForLength> runoff_for_length(const Project& project, std::size_t index);

}  // namespace gullymark::review
