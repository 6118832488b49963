#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/inlet_record.h"
#include "review/project.h"

/// The texts of an inlet as numbers, and as a sentence tells them. The units of the project are in force meanwhile.
namespace gullymark::review {

/// The number of a text, nothing where it is none.
std::optional<double> number_of(std::string_view text);
/// The same of a column, 0 where there is none.
double number_or_zero(const engine::InletRecord& record, engine::Column column);

/// True for one text, and for two that are one number.
bool is_same_number(std::string_view one, std::string_view other);

/// What a column means, without what is told of how it comes about.
std::string name_of(engine::Column column);
/// The text of a column with its unit, "blank" for an empty one.
std::string told(const engine::InletRecord& record, engine::Column column);
/// The numbers of the first inlets of a list, at most so many, and how many more there are: "L1, L2 and 7 more".
std::string listed(const Project& project, const std::vector<std::size_t>& indices, std::size_t most = 8);
/// A flow that no column holds, with its unit; words for a sum that has become infinite or none.
std::string told_flow(double flow);

/// The decimals that a number of the project's units may be stored with.
std::vector<std::string> stored_formats();
/// True where the text is that number, rounded in one of the formats; never for an infinite one.
bool is_stored_as(std::string_view text, double number, const std::vector<std::string>& formats);

}  // namespace gullymark::review
