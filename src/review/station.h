#pragma once

#include <optional>
#include <string_view>

namespace gullymark::review {

/// How far along the road a station is, in ft or m: 1234.5 for "12+34.50" and for "1234.5", 1250 for "1+250". The digits
/// between the plus and the point tell how long a station is: two of them 100, three 1000, in both unit systems. "STA",
/// "STA." or "STATION" may stand before it and a minus before the first digit ("-0+50" is 50 ahead of the start). Nothing
/// for any other text, and beyond 10,000,000.
std::optional<double> read_station(std::string_view text);

}  // namespace gullymark::review
