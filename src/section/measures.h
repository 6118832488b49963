#pragma once

#include <optional>
#include <string>

#include "engine/inlet_record.h"
#include "engine/units.h"

/// What a section is drawn with, read from the texts of a record. A text that is no number, a negative one and one that
/// no road has (longer than 1,000 ft or m, a slope above 4) is not drawn.
namespace gullymark::section {

/// A number that can be drawn, in ft, m or as it is, with its text as the record has it and its unit.
struct Measure {
    double size = 0;
    std::string text;
};

/// The size of a column, in ft or m also where the column has in or mm.
[[nodiscard]] std::optional<Measure> measure_in(const engine::InletRecord& record, engine::Column column);

/// The same, 0 where there is none.
[[nodiscard]] double size_in(const engine::InletRecord& record, engine::Column column);

/// The text of a number for a picture, with the unit behind it: short, whatever the record holds.
[[nodiscard]] std::string shown_number(std::string_view text, engine::Unit unit);

/// A number that no column holds, with the decimals of results.
[[nodiscard]] std::string shown_result(double number, engine::Unit unit);

/// The gutter of a road: its line is that of the approach, without the local depression.
struct Gutter {
    double W = 0;   // gutter width
    double Sx = 0;  // pavement cross slope
    double Sw = 0;  // gutter cross slope

    /// The height of gutter or pavement over the gutter line at the curb.
    [[nodiscard]] double height(double x) const;
};

[[nodiscard]] Gutter gutter_in(const engine::InletRecord& record);

enum class Inlet : unsigned char { curb, grate, combination, slotted, ditch, unknown };

[[nodiscard]] Inlet inlet_of(const engine::InletRecord& record);
[[nodiscard]] bool in_sump(const engine::InletRecord& record);

/// A size that the record does not give, as most roads have it; ft or m.
[[nodiscard]] double usual(double feet);

}  // namespace gullymark::section
