#include "review/sizing.h"

#include <cmath>
#include <map>

#include "calculation/units_in_force.h"
#include "catalogue/pick.h"
#include "catalogue/standards.h"
#include "engine/units.h"
#include "platform/number_text.h"
#include "review/links.h"
#include "review/runoff.h"
#include "review/station.h"
#include "review/texts.h"
#include "review/trials.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

Verdict judge_spreads(bool in_sump, double allowable) {
    if (!(allowable > 0)) {
        return Verdict::unknown;
    }
    Verdict verdict = Verdict::unknown;
    for (const Column column : {Column::OPENSPREAD, Column::GUTTERSPREAD}) {
        const double spread =
            column == Column::GUTTERSPREAD && !in_sump ? 0 : number_or_zero(engine::open_inlet, column);
        if (spread > allowable) {
            return Verdict::beyond;
        }
        if (spread > 0) {
            verdict = Verdict::within;
        }
    }
    return verdict;
}

constexpr long long most_areas = 1000000000;  // 100,000 Ac or Hc
constexpr int longest_row = 200;              // inlets after which a row that never repeats counts as endless

/// Works out rows of one inlet.
class Sizer {
  public:
    Sizer(const engine::InletRecord& inlet, const std::string& units, std::optional<double> area_for_length)
        : inlet_(inlet),
          trials_(units),
          runoff_(inlet),
          in_sump_(section::in_sump(inlet)),
          is_ditch_(section::inlet_of(inlet) == section::Inlet::ditch),
          allowable_(number_or_zero(inlet, Column::ALLOWABLE_SPREAD)),
          area_for_length_(area_for_length.value_or(0.0)) {}

    [[nodiscard]] bool has_area() const { return runoff_.has_area(); }

    SizedRow work_out(const catalogue::Table* table, const catalogue::Row* row) {
        trials_.open(inlet_);
        if (row != nullptr) {
            catalogue::pick(*table, catalogue::row_text(*table, *row));
        }
        SizedRow sized{.standard = row};
        if (table != nullptr) {
            sized.fields = row != nullptr ? fields_of(*table, *row) : own_fields(*table);
        }
        take_results(sized);
        if (runoff_.has_area() && !is_ditch_ && sized.verdict != Verdict::unknown) {
            find_area(sized);
            if (!in_sump_ && area_for_length_ > 0) {
                find_distances(sized);
            }
        }
        return sized;
    }

  private:
    static std::vector<std::string> fields_of(const catalogue::Table& table, const catalogue::Row& row) {
        return {row.begin(), row.begin() + static_cast<std::ptrdiff_t>(table.columns.size())};
    }

    /// The effective values are not of the inlet: they stay empty.
    [[nodiscard]] std::vector<std::string> own_fields(const catalogue::Table& table) const {
        std::vector<std::string> fields;
        for (const auto& column : table.columns) {
            const bool is_result = column.target == Column::RAREA || column.target == Column::EFFPERI;
            fields.push_back(column.target && !is_result ? inlet_.text(*column.target) : std::string());
        }
        return fields;
    }

    void take_results(SizedRow& row) {
        row.solved = trials_.solve();
        row.told = trials_.told();
        row.spread = Trials::text(Column::OPENSPREAD);
        row.gutter_spread = in_sump_ ? Trials::text(Column::GUTTERSPREAD) : std::string();
        row.depth = Trials::text(in_sump_ ? Column::DEPTHATINLET : Column::CURBDEPTH);
        row.intercepted = Trials::text(Column::QINT);
        row.bypass = Trials::text(Column::QCARRY);
        row.share = intercepted_share();
        row.verdict = is_ditch_ ? Verdict::unknown : judge_spreads(in_sump_, allowable_);
    }

    static std::optional<double> intercepted_share() {
        const auto intercepted = number_of(Trials::text(Column::QINT));
        const auto total = number_of(Trials::text(Column::TOTAL_DISCHARGE));
        if (!intercepted || !total || !(*total > 0)) {
            return std::nullopt;
        }
        const double share = *intercepted / *total;
        return std::isfinite(share) ? std::optional(share) : std::nullopt;
    }

    /// No water at all is within.
    bool flow_is_within() {
        return !trials_.solve() || judge_spreads(in_sump_, allowable_) == Verdict::within;
    }

    void find_area(SizedRow& row) {
        const Largest largest = find_largest(
            [this](long long count) {
                runoff_.try_area(count);
                return flow_is_within();
            },
            most_areas);
        if (largest.unlimited) {
            row.area.kind = LargestArea::Kind::unlimited;
        } else if (largest.count > 0) {
            const std::string other = runoff_.other_area(largest.count);
            row.area = {.kind = LargestArea::Kind::found,
                        .left = runoff_.leads_right() ? other : area_text(largest.count),
                        .right = runoff_.leads_right() ? area_text(largest.count) : other};
        }
    }

    /// The bypass of a flow where it is within. What was worked out once is kept: on a grade the total tells all.
    std::optional<double> bypass_within(const std::string& total) {
        const auto known = bypasses_.find(total);
        if (known != bypasses_.end()) {
            return known->second;
        }
        Trials::set(Column::TOTAL_DISCHARGE, total);
        std::optional<double> bypass;
        if (flow_is_within()) {
            bypass = number_or_zero(engine::open_inlet, Column::QCARRY);
        }
        bypasses_.emplace(total, bypass);
        return bypass;
    }

    bool row_is_within(long long count, int inlets) {
        const double discharge = runoff_.discharge_of(count);
        std::string total = total_text(discharge);
        for (int k = 0; k < inlets; ++k) {
            const auto bypass = bypass_within(total);
            if (!bypass) {
                return false;
            }
            std::string next = total_text(discharge + *bypass);
            if (next == total) {
                return true;
            }
            total = std::move(next);
        }
        return true;
    }

    void find_distances(SizedRow& row) {
        bypasses_.clear();
        row.first_distance = distance_of(1);
        row.next_distance = row.first_distance.empty() ? std::string() : distance_of(longest_row);
    }

    std::string distance_of(int inlets) {
        const Largest largest = find_largest(
            [this, inlets](long long count) { return row_is_within(count, inlets); }, most_areas);
        const double distance = static_cast<double>(largest.count) / areas_in_one / area_for_length_;
        if (largest.count == 0 || largest.unlimited || !(distance < 1e7)) {
            return {};
        }
        return platform::format_number(std::floor(distance * 10) / 10, "0.0");
    }

    const engine::InletRecord& inlet_;
    Trials trials_;
    Runoff runoff_;
    bool in_sump_;
    bool is_ditch_;
    double allowable_;
    double area_for_length_;
    std::map<std::string, std::optional<double>> bypasses_;
};

}  // namespace

Sizing size_inlet(const engine::InletRecord& inlet, const std::string& units,
                  std::optional<double> area_for_length) {
    Sizing sizing{
        .table = catalogue::table_for(inlet.text(Column::INLET_LOCATION), inlet.text(Column::INLET_TYPE)),
        .in_sump = section::in_sump(inlet),
        .has_spread = section::inlet_of(inlet) != section::Inlet::ditch};
    Sizer sizer(inlet, units, area_for_length);
    sizing.has_area = sizer.has_area();
    sizing.rows.push_back(sizer.work_out(sizing.table, nullptr));
    if (sizing.table != nullptr) {
        for (const auto& row : sizing.table->rows) {
            if (!catalogue::is_separator(row)) {
                sizing.rows.push_back(sizer.work_out(sizing.table, &row));
            }
        }
    }
    return sizing;
}

std::optional<RunoffForLength> runoff_for_length(const Project& project, std::size_t index) {
    const calculation::UnitsInForce units(project.units);
    const auto& inlet = project.inlets.at(index);
    const auto& previous = inlet.text(Column::PREINLET1);
    const auto here = read_station(inlet.text(Column::STATION));
    const double area = number_or_zero(inlet, Column::RUNOFF_AREA);
    if (previous.empty() || !here || !(area > 0)) {
        return std::nullopt;
    }
    const auto source = Links(project).source(previous);
    if (!source) {
        return std::nullopt;
    }
    const auto& other = project.inlets[*source];
    const auto there = read_station(other.text(Column::STATION));
    const double distance = there ? std::abs(*here - *there) : 0;
    if (!(distance > 0) || !(area / distance > 0)) {
        return std::nullopt;
    }
    return RunoffForLength{.area = area / distance,
                           .sentence = told(inlet, Column::RUNOFF_AREA) + " over " +
                                       platform::format_number(distance, "0.00") + ' ' +
                                       std::string(engine::unit_text(engine::Unit::length)) + " from inlet " +
                                       told(other, Column::INLET_NUMBER)};
}

}  // namespace gullymark::review
