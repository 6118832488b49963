#include "review/station_rules.h"

#include <array>

#include "platform/number_text.h"
#include "review/station.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;
using engine::InletRecord;

namespace {

/// How far `to` stands beyond `from` along the road; nothing where that cannot be known.
std::optional<double> way(const InletRecord& from, const InletRecord& to) {
    const auto road = [](const InletRecord& record) {
        return platform::trim_blanks(record.text(Column::ROADWAY));
    };
    const auto start = read_station(from.text(Column::STATION));
    const auto end = read_station(to.text(Column::STATION));
    return start && end && road(from) == road(to) ? std::optional(*end - *start) : std::nullopt;
}

/// The previous inlet of a side; null for none.
const InletRecord* previous_of(const Survey& survey, const InletRecord& record, const Side& side) {
    const auto source = survey.links().source(record.text(side.preinlet));
    return source ? &survey.inlet(*source) : nullptr;
}

std::string at_station(const InletRecord& record) {
    return told(record, Column::INLET_NUMBER) + " at " + told(record, Column::STATION);
}

/// A previous inlet on a low station, say, sends its bypass up the stations.
void judge_direction(Survey& survey, Survey::Index index, const InletRecord& previous) {
    const auto& record = survey.inlet(index);
    const auto& direction = record.text(Column::FLOW_DIRECTION);
    const auto along = way(previous, record);
    if (along &&
        ((direction == "Low Station" && *along < 0) || (direction == "High Station" && *along > 0))) {
        survey.report(rules::direction_against_stations, index,
                      "Flow comes from " + told(record, Column::FLOW_DIRECTION) + " to station " +
                          told(record, Column::STATION) + ", but the previous inlet is " +
                          at_station(previous) + ".",
                      "Check the flow direction, the stations, and which inlet comes first.");
    }
}

/// On a grade water does not turn: from the inlet before the previous one on it goes one way.
void judge_turn(Survey& survey, Survey::Index index, const InletRecord& previous) {
    const auto& record = survey.inlet(index);
    if (section::in_sump(previous)) {
        return;
    }
    const auto* const first = previous_of(survey, previous, sides_of(previous).front());
    const auto before = first == nullptr ? std::nullopt : way(*first, previous);
    const auto behind = way(previous, record);
    if (before && behind && *before * *behind < 0) {
        survey.report(rules::bypass_turns_back, index,
                      "Bypass goes from inlet " + at_station(*first) + " to inlet " + at_station(previous) +
                          " and turns back to station " + told(record, Column::STATION) + ".",
                      "Check the stations, and which inlet comes first.");
    }
}

void judge_sump_sides(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    const auto sides = sides_of(record);
    if (sides.size() < 2) {
        return;
    }
    const auto* const left = previous_of(survey, record, sides[0]);
    const auto* const right = previous_of(survey, record, sides[1]);
    if (left == nullptr || right == nullptr) {
        return;
    }
    const auto from_left = way(*left, record);
    const auto from_right = way(*right, record);
    if (from_left && from_right && *from_left * *from_right > 0) {
        survey.report(rules::sump_fed_from_one_side, index,
                      "Both previous inlets, " + at_station(*left) + " and " + at_station(*right) +
                          ", stand on one side of the sump at " + told(record, Column::STATION) + ".",
                      "Check the stations, and the previous inlets of both sides.");
    }
}

}  // namespace

void judge_stations(Survey& survey, Survey::Index index) {
    const auto& record = survey.inlet(index);
    for (const auto& side : sides_of(record)) {
        if (const auto* const previous = previous_of(survey, record, side)) {
            judge_direction(survey, index, *previous);
            judge_turn(survey, index, *previous);
        }
    }
    judge_sump_sides(survey, index);
}

}  // namespace gullymark::review
