#pragma once

#include <array>
#include <string_view>

namespace gullymark::store {

/// The county list of the details form, in its order. A name that it lacks can be typed there.
inline constexpr std::array<std::string_view, 66> counties{
    "Autauga",   "Baldwin",    "Barbour",   "Blount",    "Bullock",    "Butler",     "Calhoun",  "Chambers",
    "Cherokee",  "Chilton",    "Choctaw",   "Clarke",    "Clay",       "Cleburne",   "Coffee",   "Colbert",
    "Conecuh",   "Coosa",      "Covington", "Crenshaw",  "Cullman",    "Dale",       "Dallas",   "Dekalb",
    "Elmore",    "Escambia",   "Etowah",    "Fayette",   "Franklin",   "Geneva",     "Greene",   "Hale",
    "Henry",     "Houston",    "Jackson",   "Jefferson", "Lamar",      "Lauderdale", "Lawrence", "Lee",
    "Limestone", "Lowndes",    "Macon",     "Madison",   "Marengo",    "Marion",     "Marshall", "Mobile",
    "Monroe",    "Montgomery", "Morgan",    "Perry",     "Pickens",    "Pike",       "Randolph", "Russell",
    "Shelby",    "St. Clair",  "Sumter",    "Talladega", "Tallapoosa", "Tuscaloosa", "Walker",   "Washington",
    "Wilcox",    "Winston"};

}  // namespace gullymark::store
