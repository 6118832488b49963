#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "engine/inlet_record.h"
#include "review/sides.h"

/// The runoff of an inlet as it follows from its areas.
namespace gullymark::review {

/// The decimals of RUNOFF_AREA.
inline constexpr double areas_in_one = 10000.0;
inline constexpr std::string_view area_format = "0.0000";

/// An area of so many ten-thousandths, as RUNOFF_AREA holds it.
std::string area_text(long long count);

/// What searches found: the largest count that is allowed up from 1.
struct Largest {
    long long count = 0;  // 0: 1 is too much already
    bool unlimited = false;
};

/// The largest count up to which everything is allowed, of counts that grow by an eighth from 1 to `most`: allowed itself,
/// while one more is not.
Largest find_largest(const std::function<bool(long long)>& allowed, long long most);

/// The shares of an inlet's flow, some of which follow from areas that are tried.
class Runoff {
  public:
    /// `inlet` must outlast it. The units of the project are in force.
    explicit Runoff(const engine::InletRecord& inlet);

    /// True where an area counts: a side that counts has a discharge that is not typed, an area and a factor above 0.
    [[nodiscard]] bool has_area() const { return leading_ != nullptr; }

    /// Opens the flow of that area in the engine: discharges and total. In a sump the other side grows along.
    void try_area(long long count) const;
    /// The area of the other side, empty where it does not grow along.
    [[nodiscard]] std::string other_area(long long count) const;
    /// True where the area that is searched is that of the right side.
    [[nodiscard]] bool leads_right() const { return leading_ != nullptr && leading_ != sides_.data(); }

    /// The discharge of that area alone, as the form rounds it, on the side that is searched.
    [[nodiscard]] double discharge_of(long long count) const;

  private:
    [[nodiscard]] double discharge_of(const Side& side, double area) const;
    [[nodiscard]] bool grows(const Side& side) const;
    [[nodiscard]] double area_of(const Side& side, long long count) const;

    const engine::InletRecord& inlet_;
    std::span<const Side> sides_;
    const Side* leading_ = nullptr;
};

/// A flow with the decimals of TOTAL_DISCHARGE in the units in force.
std::string total_text(double flow);

}  // namespace gullymark::review
