#include "review/fresh_road.h"

#include <algorithm>
#include <utility>

#include "calculation/solve_copy.h"
#include "calculation/stored_results.h"
#include "calculation/units_in_force.h"
#include "engine/inlet_flow.h"
#include "engine/results.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"
#include "review/links.h"
#include "review/sides.h"
#include "review/texts.h"

namespace gullymark::review {

using engine::Column;
using engine::InletRecord;

namespace {

/// Texts that the flow fields of an inlet take when its designer goes through them.
using FlowTexts = std::vector<std::pair<Column, std::string>>;

class Renewal {
  public:
    explicit Renewal(const Project& project)
        : project_(project), links_(project), number_format_(engine::unit_constants.numberFormat) {}

    std::optional<FreshRoad> run(const Progress& progress) {
        std::size_t done = 0;
        for (const auto& link : links_.in_order()) {
            tell_loop(link);
            for (const std::size_t index : link.inlets) {
                if (!progress(done++, project_.inlets.size())) {
                    return std::nullopt;
                }
                tell_missing(index);
                renew(index, flow_texts(index, link));
            }
        }
        return std::move(road_);
    }

  private:
    void tell_loop(const Link& link) {
        if (link.in_loop) {
            road_.obstacles.push_back(
                {.index = link.inlets.front(),
                 .text = link.inlets.size() == 1
                             ? "The inlet is its own previous inlet: it keeps the carryover that is stored."
                             : "Inlets " + listed(project_, link.inlets) +
                                   " feed each other in a loop: they keep the carryovers that are stored."});
        }
    }

    void tell_missing(std::size_t index) {
        const auto& record = project_.inlets[index];
        for (const auto& side : sides_of(record)) {
            const auto& previous = record.text(side.preinlet);
            const auto count = links_.with_number(previous).size();
            if (previous.empty() || count == 1) {
                continue;
            }
            road_.obstacles.push_back(
                {.index = index,
                 .text = "Previous inlet" + std::string(side.behind) + " is " + told(record, side.preinlet) +
                         (count == 0 ? ", which is not in the project: its carryover stays as stored."
                                     : ", the number of " + std::to_string(count) +
                                           " inlets: the first in the file counts.")});
        }
    }

    /// The carryover that comes from the fresh previous inlet, nothing where the stored one is that already or must stay.
    std::optional<std::string> new_carryover(std::size_t index, const Side& side, const Link& link) const {
        const auto& stored = project_.inlets[index];
        const auto& previous = stored.text(side.preinlet);
        const auto source = links_.source(previous);
        std::string_view bypass;
        if (source) {
            if (link.in_loop && std::ranges::binary_search(link.inlets, *source)) {
                return std::nullopt;
            }
            bypass = road_.inlet(project_, *source).text(Column::QCARRY);
        } else if (!previous.empty()) {
            return std::nullopt;
        }
        const auto carryover = engine::carryover_from(bypass);
        const bool is_stored = is_same_number(engine::carryover_from(stored.text(side.carryover)), carryover);
        return is_stored ? std::nullopt : std::optional<std::string>(carryover);
    }

    /// None where carryovers and total are right as they are stored.
    FlowTexts flow_texts(std::size_t index, const Link& link) const {
        const auto& stored = project_.inlets[index];
        FlowTexts texts;
        auto shares = shares_of(stored);
        for (const auto& side : sides_of(stored)) {
            if (const auto carryover = new_carryover(index, side, link)) {
                texts.emplace_back(side.carryover, *carryover);
                auto& share = side.carryover == Column::CARRYOVER1 ? shares.bypass_left : shares.bypass_right;
                share = number_of(*carryover).value_or(0.0);
            }
        }
        try {
            const double total = engine::total_flow(shares).number();
            if (!texts.empty() ||
                !is_stored_as(stored.text(Column::TOTAL_DISCHARGE), total, stored_formats())) {
                texts.emplace_back(Column::TOTAL_DISCHARGE, platform::format_number(total, number_format_));
            }
        } catch (engine::Fault) {
            return texts;  // the field keeps its total
        }
        return texts;
    }

    void renew(std::size_t index, const FlowTexts& texts) {
        const auto& stored = project_.inlets[index];
        if (texts.empty()) {
            auto solved = calculation::solve_like_stored_untraced(stored, project_.units, number_format_);
            if (!solved.solved || !calculation::differing_results(stored, solved.inlet).empty()) {
                take(index, std::move(solved));
            }
            return;
        }
        take(index, calculation::solve_untraced(with_flow(stored, texts), project_.units, number_format_));
    }

    /// The inlet when its flow fields have been gone through: the program fills those that are empty.
    static InletRecord with_flow(const InletRecord& stored, const FlowTexts& texts) {
        InletRecord record = stored;
        const auto fill = [&](Column column, const char* zero) {
            if (record.text(column).empty()) {
                record.load(column, zero);
            }
        };
        for (const Column column : {Column::DISCHARGE1, Column::DISCHARGE2, Column::OVERLAND_FLOW}) {
            fill(column, "0.000");
        }
        for (const Column column : {Column::CARRYOVER1, Column::CARRYOVER2}) {
            fill(column, "0.0");
        }
        for (const auto& [column, text] : texts) {
            record.load(column, text);
        }
        return record;
    }

    void take(std::size_t index, calculation::SolvedCopy solved) {
        const auto& stored = project_.inlets[index];
        FreshInlet fresh{.record = std::move(solved.inlet), .solved = solved.solved};
        if (!fresh.solved) {
            for (const Column column : engine::all_result_columns()) {
                fresh.record.load(column, stored.value(column));
            }
            std::string why;
            for (const auto& box : solved.boxes) {
                why += ": " + box.text;
            }
            road_.obstacles.push_back(
                {.index = index,
                 .text = "Solve gives no results, and what is stored cannot be replaced" + why});
        } else {
            road_.to_do.push_back(index);
        }
        for (const Column column : engine::all_columns) {
            if (stored.text(column) != fresh.record.text(column)) {
                fresh.differing.push_back(column);
            }
        }
        road_.inlets.emplace(index, std::move(fresh));
    }

    const Project& project_;
    Links links_;
    std::string number_format_;
    FreshRoad road_;
};

}  // namespace

const InletRecord& FreshRoad::inlet(const Project& project, std::size_t index) const {
    const auto found = inlets.find(index);
    return found == inlets.end() ? project.inlets[index] : found->second.record;
}

FreshRoad make_fresh_road(const Project& project) {
    return *make_fresh_road(project, [](std::size_t, std::size_t) { return true; });
}

std::optional<FreshRoad> make_fresh_road(const Project& project, const Progress& progress) {
    const calculation::UnitsInForce units(project.units);
    engine::set_unit_defaults();
    return Renewal(project).run(progress);
}

}  // namespace gullymark::review
