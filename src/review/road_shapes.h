#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "review/finding.h"
#include "section/measures.h"

/// The road of a project as plain shapes, for who paints it. Along the road it is to scale, in ft or m; across it is not: an
/// inlet stands left of the line, on it or right of it. Whatever the texts are, all numbers are finite.
///
/// The side of an inlet is OFFSET_LOCATION, "LEFT" or "RIGHT", by which the form signs the offset; where that is neither,
/// the sign of OFFSET, negative to the left; where that is 0 or no number, the inlet stands on the line.
namespace gullymark::review {

enum class Across : unsigned char { left, on_line, right };

/// A spread as it stands to the allowable one.
struct PlannedSpread {
    std::string text;       // "7.300 ft", empty where none is known
    std::string allowable;  // "8.0 ft"
    double share = 0;       // spread / allowable, 0 to 6; 0 where one of them is unknown
    bool beyond = false;
    int toward = -1;  // the approach comes from lower (-1) or from higher (1) stations
};

struct PlannedInlet {
    std::string number;
    std::string station;  // as stored
    std::string kind;     // "Curb Inlet, SUMP"
    section::Inlet symbol = section::Inlet::unknown;
    bool in_sump = false;
    double at = 0;           // along the road
    bool has_place = false;  // its station can be read
    Across across = Across::on_line;
    std::size_t lane = 0;
    std::size_t rank = 0;                // so many inlets stand on the same spot before it
    std::vector<PlannedSpread> spreads;  // of a road one, in a sump the left and the right approach
    std::optional<Severity> worst;       // of its findings
    bool stale = false;                  // something stored does not follow from what is stored
    bool loses_water = false;            // flow vanishes at it, or no inlet takes its bypass
    std::string sentence;                // number, kind, station, spreads, bypass and findings, in lines
};

/// What an arrow of bypass tells; the worst that applies.
enum class Flow : unsigned char {
    taken,    // the carryover is the bypass
    dry,      // it is, and both are 0
    twice,    // it is counted by more than one inlet or side
    stale,    // the carryover is another number
    loop,     // the inlets feed each other
    nowhere,  // no inlet takes the bypass
    missing,  // the previous inlet is not in the project
};

struct PlannedArrow {
    std::optional<std::size_t> from;  // indices of inlets; nothing for `missing`
    std::optional<std::size_t> to;    // nothing for `nowhere`
    Flow flow = Flow::taken;
    std::string text;  // "0.532 cfs", of a stale one "0.532 cfs, stored 0.400 cfs"
};

/// Inlets of one roadway, or those whose station cannot be read, which stand in their order at even distances.
struct Lane {
    std::string name;
    bool has_stations = true;
};

struct RoadPlan {
    std::vector<Lane> lanes;           // by the first inlet of each; that without stations is the last
    std::vector<PlannedInlet> inlets;  // as in the project
    std::vector<std::size_t> along;    // their indices lane by lane, by stations
    std::vector<std::size_t> places;   // where an inlet stands in `along`
    std::vector<PlannedArrow> arrows;
    double from = 0;  // the stretch of road that holds all inlets; always longer than 0
    double to = 1;
    int station_length = 100;  // "12+34" is 100, "1+234" 1000, 0 where stations are plain numbers
};

}  // namespace gullymark::review
