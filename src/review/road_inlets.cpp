#include "review/road_inlets.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "engine/hydraulics/Common_Libraries.h"
#include "engine/words.h"
#include "review/rules.h"
#include "review/sides.h"
#include "review/station.h"
#include "review/texts.h"
#include "section/approaches.h"
#include "section/gutter.h"

namespace gullymark::review {

using engine::Column;

namespace {

constexpr std::array stale_rules{rules::result_differs, rules::not_solved, rules::carryover_differs,
                                 rules::total_differs, rules::discharge_differs};
constexpr std::array losing_rules{rules::bypass_untaken, rules::flow_vanishes};

template <typename Rules>
bool is_one_of(const Rules& some, const Finding& finding) {
    return std::ranges::any_of(some, [&](const Rule& rule) { return rule.name == finding.rule; });
}

Across side_of(const engine::InletRecord& record) {
    const auto& word = record.text(Column::OFFSET_LOCATION);
    const double offset = number_or_zero(record, Column::OFFSET);
    if (word == "LEFT" || word == "RIGHT") {
        return word == "LEFT" ? Across::left : Across::right;
    }
    return offset < 0 ? Across::left : offset > 0 ? Across::right : Across::on_line;
}

PlannedSpread plan_spread(const engine::InletRecord& record, const std::string& text) {
    const section::Spread judged = section::judge_spread(record, text);
    PlannedSpread spread{.beyond = judged.beyond};
    if (judged.spread) {
        spread.text = section::shown_number(text, engine::Unit::length);
    }
    if (judged.allowable) {
        spread.allowable = section::shown_number(record.text(Column::ALLOWABLE_SPREAD), engine::Unit::length);
    }
    if (judged.spread && judged.allowable) {
        spread.share =
            std::clamp(judged.spread->size / judged.allowable->size, 0.0, engine::ceiling_in_limits);
    }
    return spread;
}

std::vector<PlannedSpread> plan_spreads(const engine::InletRecord& record, bool results_belong) {
    const auto kind = section::inlet_of(record);
    if (kind == section::Inlet::ditch || kind == section::Inlet::unknown) {
        return {};
    }
    if (!section::in_sump(record)) {
        return {plan_spread(record, record.text(Column::OPENSPREAD))};
    }
    const auto both = section::approaches_of(record, results_belong);
    return {plan_spread(record, both.left.spread), plan_spread(record, both.right.spread)};
}

std::string spread_line(const std::vector<PlannedSpread>& spreads) {
    std::string line;
    for (std::size_t i = 0; i < spreads.size(); ++i) {
        const auto& spread = spreads[i];
        line += i > 0 ? "; " : "Spread ";
        line += spreads.size() == 1 ? "" : i == 0 ? "from the left " : "from the right ";
        line += spread.text.empty() ? "unknown" : spread.text;
        line += i + 1 == spreads.size() && !spread.allowable.empty()
                    ? " of " + spread.allowable + " allowable"
                    : "";
    }
    return line;
}

std::string fresh_line(const engine::InletRecord& stored, const FreshInlet& fresh) {
    if (!fresh.solved) {
        return "It cannot be solved anew";
    }
    std::string line;
    for (const Column column :
         {Column::TOTAL_DISCHARGE, Column::OPENSPREAD, Column::GUTTERSPREAD, Column::QCARRY}) {
        if (stored.text(column) != fresh.record.text(column)) {
            line += (line.empty() ? "Brought up to date: " : ", ") +
                    std::string(column == Column::TOTAL_DISCHARGE ? "total "
                                : column == Column::QCARRY        ? "bypass "
                                                                  : "spread ") +
                    told(fresh.record, column);
        }
    }
    return line;
}

void add_line(std::string& sentence, const std::string& line) {
    if (!line.empty()) {
        sentence += (sentence.empty() ? "" : "\n") + line;
    }
}

std::string head_line(const engine::InletRecord& record) {
    return "Inlet " + told(record, Column::INLET_NUMBER) + ", " + told(record, Column::INLET_TYPE) + ", " +
           told(record, Column::INLET_LOCATION);
}

std::string place_line(const engine::InletRecord& record) {
    std::string line = "Station " + told(record, Column::STATION);
    if (!record.text(Column::OFFSET).empty()) {
        line += ", offset " + told(record, Column::OFFSET);
    }
    if (!record.text(Column::OFFSET_LOCATION).empty()) {
        line += ' ' + told(record, Column::OFFSET_LOCATION);
    }
    return line;
}

PlannedInlet plan_inlet(const engine::InletRecord& record) {
    const auto station = read_station(record.text(Column::STATION));
    return {.number = told(record, Column::INLET_NUMBER),
            .station = record.text(Column::STATION),
            .kind = told(record, Column::INLET_TYPE) + ", " + told(record, Column::INLET_LOCATION),
            .symbol = section::inlet_of(record),
            .in_sump = section::in_sump(record),
            .at = station.value_or(0.0),
            .has_place = station.has_value(),
            .across = side_of(record)};
}

/// Told after the rest: at most so many findings, and how many more there are.
void tell_findings(PlannedInlet& inlet, const std::vector<const Finding*>& findings) {
    constexpr std::size_t most = 4;
    for (std::size_t i = 0; i < std::min(findings.size(), most); ++i) {
        add_line(inlet.sentence, findings[i]->text);
    }
    if (findings.size() > most) {
        add_line(inlet.sentence, "and " + std::to_string(findings.size() - most) + " more findings");
    }
}

void take_findings(PlannedInlet& inlet, const std::vector<const Finding*>& findings) {
    for (const Finding* finding : findings) {
        inlet.worst = inlet.worst ? std::min(*inlet.worst, finding->severity) : finding->severity;
        inlet.stale = inlet.stale || is_one_of(stale_rules, *finding);
        inlet.loses_water = inlet.loses_water || is_one_of(losing_rules, *finding);
    }
}

/// -1 or 1 from one inlet to another one along the road, 0 where that is unknown.
int way_to(const PlannedInlet& from, const PlannedInlet& to) {
    if (!from.has_place || !to.has_place || from.lane != to.lane || from.at == to.at) {
        return 0;
    }
    return to.at < from.at ? -1 : 1;
}

}  // namespace

std::vector<PlannedInlet> plan_inlets(const Project& project, const std::vector<Finding>& findings,
                                      const FreshRoad* fresh) {
    std::vector<std::vector<const Finding*>> found(project.inlets.size());
    for (const auto& finding : findings) {
        if (finding.index < found.size()) {
            found[finding.index].push_back(&finding);
        }
    }
    std::vector<PlannedInlet> inlets;
    inlets.reserve(project.inlets.size());
    for (std::size_t index = 0; index < project.inlets.size(); ++index) {
        const auto& record = project.inlets[index];
        inlets.push_back(plan_inlet(record));
        PlannedInlet& inlet = inlets.back();
        take_findings(inlet, found[index]);
        const bool is_fresh = fresh == nullptr || !fresh->inlets.contains(index);
        inlet.stale = inlet.stale || !is_fresh;
        inlet.spreads = plan_spreads(record, !inlet.stale);
        add_line(inlet.sentence, head_line(record));
        add_line(inlet.sentence, place_line(record));
        add_line(inlet.sentence, spread_line(inlet.spreads));
        add_line(inlet.sentence,
                 record.text(Column::QCARRY).empty() ? "" : "Bypass " + told(record, Column::QCARRY));
        if (!is_fresh) {
            add_line(inlet.sentence, fresh_line(record, fresh->inlets.at(index)));
        }
        tell_findings(inlet, found[index]);
    }
    return inlets;
}

void point_spreads(std::vector<PlannedInlet>& inlets, const Project& project, const Links& links) {
    for (std::size_t index = 0; index < inlets.size(); ++index) {
        auto& inlet = inlets[index];
        const auto sides = sides_of(project.inlets[index]);
        std::array<int, 2> ways{};
        for (std::size_t i = 0; i < std::min(sides.size(), inlet.spreads.size()); ++i) {
            const auto source = links.source(project.inlets[index].text(sides[i].preinlet));
            ways.at(i) = source ? way_to(inlet, inlets[*source]) : 0;
        }
        const auto& takers = links.takers_of(project.inlets[index].text(Column::INLET_NUMBER));
        if (inlet.spreads.size() == 1 && ways[0] == 0 && !takers.empty()) {
            ways[0] = -way_to(inlet, inlets[takers.front()]);
        }
        if (inlet.spreads.size() == 2 && ways[0] + ways[1] != 0) {
            ways = ways[0] == ways[1] ? std::array{-1, 1}
                   : ways[0] == 0     ? std::array{-ways[1], ways[1]}
                                      : std::array{ways[0], -ways[0]};
        } else if (inlet.spreads.size() == 2 && ways[0] == 0) {
            ways = {-1, 1};
        }
        for (std::size_t i = 0; i < inlet.spreads.size(); ++i) {
            inlet.spreads[i].toward = ways.at(i) == 0 ? -1 : ways.at(i);
        }
    }
}

int station_length_of(const std::vector<PlannedInlet>& inlets) {
    for (const auto& inlet : inlets) {
        const std::size_t plus = inlet.station.find('+');
        if (inlet.has_place && plus != std::string::npos) {
            const std::size_t end = inlet.station.find_first_not_of("0123456789", plus + 1);
            return std::min(end, inlet.station.size()) - plus - 1 == 3 ? 1000 : 100;
        }
    }
    return 0;
}

}  // namespace gullymark::review
