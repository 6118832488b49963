#include "review/runoff.h"

#include <algorithm>

#include "engine/inlet_flow.h"
#include "engine/unit_constants.h"
#include "platform/number_text.h"
#include "review/texts.h"

namespace gullymark::review {

using engine::Column;

std::string area_text(long long count) {
    return platform::format_number(static_cast<double>(count) / areas_in_one, area_format);
}

std::string total_text(double flow) {
    return platform::format_number(flow, engine::unit_constants.numberFormat);
}

Largest find_largest(const std::function<bool(long long)>& allowed, long long most) {
    if (!allowed(1)) {
        return {};
    }
    long long good = 1;
    long long bad = most;
    while (true) {
        const long long next = good + std::max(1LL, good / 8);
        if (next > most) {
            return {.count = good, .unlimited = true};
        }
        if (!allowed(next)) {
            bad = next;
            break;
        }
        good = next;
    }
    while (bad - good > 1) {
        const long long middle = good + (bad - good) / 2;
        (allowed(middle) ? good : bad) = middle;
    }
    return {.count = good};
}

Runoff::Runoff(const engine::InletRecord& inlet) : inlet_(inlet), sides_(sides_of(inlet)) {
    const auto found = std::ranges::find_if(sides_, [this](const Side& side) { return grows(side); });
    if (found != sides_.end()) {
        leading_ = &*found;
    }
}

bool Runoff::grows(const Side& side) const {
    return inlet_.text(side.override_text) != "YES" && number_or_zero(inlet_, side.area) > 0 &&
           number_or_zero(inlet_, side.intensity) > 0 && number_or_zero(inlet_, side.coefficient) > 0;
}

double Runoff::area_of(const Side& side, long long count) const {
    const double area = static_cast<double>(count) / areas_in_one;
    if (&side == leading_) {
        return area;
    }
    const double share = number_or_zero(inlet_, side.area) / number_or_zero(inlet_, leading_->area);
    return number_of(platform::format_number(area * share, area_format)).value_or(0.0);
}

double Runoff::discharge_of(const Side& side, double area) const {
    try {
        const double flow = engine::rational_discharge(number_or_zero(inlet_, side.intensity), area,
                                                       number_or_zero(inlet_, side.coefficient))
                                .number();
        return number_of(platform::format_number(flow, engine::discharge_format)).value_or(0.0);
    } catch (engine::Fault) {
        return 0.0;
    }
}

double Runoff::discharge_of(long long count) const {
    return discharge_of(*leading_, static_cast<double>(count) / areas_in_one);
}

std::string Runoff::other_area(long long count) const {
    for (const Side& side : sides_) {
        if (&side != leading_ && grows(side)) {
            return platform::format_number(area_of(side, count), area_format);
        }
    }
    return {};
}

void Runoff::try_area(long long count) const {
    double total = number_or_zero(inlet_, Column::OVERLAND_FLOW);
    for (const Side& side : sides_) {
        double discharge = number_or_zero(inlet_, side.discharge);
        if (grows(side)) {
            discharge = discharge_of(side, area_of(side, count));
            engine::open_inlet.set(side.discharge,
                                   platform::format_number(discharge, engine::discharge_format));
        }
        total += discharge + number_or_zero(inlet_, side.carryover);
    }
    engine::open_inlet.set(Column::TOTAL_DISCHARGE, total_text(total));
}

}  // namespace gullymark::review
