#include "review/flow_curve.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "catalogue/pick.h"
#include "catalogue/standards.h"
#include "engine/inlet_flow.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"
#include "review/runoff.h"
#include "review/texts.h"
#include "review/trials.h"
#include "section/measures.h"

namespace gullymark::review {

using engine::Column;

namespace {

std::optional<double> above_zero(std::string_view text) {
    const auto number = number_of(text);
    return number && *number > 0 ? number : std::nullopt;
}

class CurveMaker {
  public:
    CurveMaker(const engine::InletRecord& inlet, const std::string& units, const catalogue::Row* standard)
        : inlet_(inlet),
          trials_(units),
          in_sump_(section::in_sump(inlet)),
          is_ditch_(section::inlet_of(inlet) == section::Inlet::ditch),
          own_flow_(above_zero(inlet.text(Column::TOTAL_DISCHARGE))) {
        trials_.open(inlet);
        const auto* const table =
            catalogue::table_for(inlet.text(Column::INLET_LOCATION), inlet.text(Column::INLET_TYPE));
        if (table != nullptr && standard != nullptr) {
            catalogue::pick(*table, catalogue::row_text(*table, *standard));
        }
    }

    FlowCurve make(std::size_t count) {
        FlowCurve curve{.allowable = above_zero(inlet_.text(Column::ALLOWABLE_SPREAD)),
                        .has_spread = !is_ditch_};
        if (own_flow_) {
            curve.inlet = point_at(*own_flow_);
        }
        const double most = greatest_flow(curve.allowable);
        for (std::size_t i = 1; i <= count; ++i) {
            if (const auto point = point_at(most * static_cast<double>(i) / static_cast<double>(count))) {
                curve.points.push_back(*point);
            }
        }
        return curve;
    }

  private:
    double greatest_flow(const std::optional<double>& allowable) {
        constexpr double largest = 1e9;
        double most = std::min(2 * own_flow_.value_or(engine::by_units(5.0, 0.15)), largest);
        for (int doubled = 0; allowable && doubled < 3; ++doubled) {
            const auto point = point_at(most);
            if (!point || !point->spread || *point->spread > *allowable) {
                break;
            }
            most *= 2;
        }
        return most;
    }

    /// Nothing where Solve refuses the flow, which may round to 0.
    std::optional<FlowPoint> point_at(double flow) {
        open_flow(flow);
        if (!trials_.solve()) {
            return std::nullopt;
        }
        FlowPoint point{
            .flow = number_or_zero(engine::open_inlet, Column::TOTAL_DISCHARGE),
            .depth = number_of(Trials::text(in_sump_ ? Column::DEPTHATINLET : Column::CURBDEPTH))};
        if (!is_ditch_) {
            point.spread = above_zero(Trials::text(Column::OPENSPREAD));
            if (in_sump_) {
                point.spread = std::max(point.spread, above_zero(Trials::text(Column::GUTTERSPREAD)));
            }
        }
        if (const auto intercepted = number_of(Trials::text(Column::QINT))) {
            const double share = *intercepted / point.flow;
            point.share = std::isfinite(share) ? std::optional(share) : std::nullopt;
        }
        return point;
    }

    void open_flow(double flow) {
        Trials::set(Column::TOTAL_DISCHARGE,
                    own_flow_ == flow ? inlet_.text(Column::TOTAL_DISCHARGE) : total_text(flow));
        if (!in_sump_) {
            return;
        }
        for (const Column share :
             {Column::DISCHARGE1, Column::DISCHARGE2, Column::CARRYOVER1, Column::CARRYOVER2}) {
            const double part = number_or_zero(inlet_, share) * flow / own_flow_.value_or(flow);
            Trials::set(share, own_flow_ == flow ? inlet_.text(share)
                                                 : platform::format_number(part, engine::discharge_format));
        }
    }

    const engine::InletRecord& inlet_;
    Trials trials_;
    bool in_sump_;
    bool is_ditch_;
    std::optional<double> own_flow_;
};

}  // namespace

FlowCurve flow_curve(const engine::InletRecord& inlet, const std::string& units,
                     const catalogue::Row* standard, std::size_t count) {
    return CurveMaker(inlet, units, standard).make(count);
}

}  // namespace gullymark::review
