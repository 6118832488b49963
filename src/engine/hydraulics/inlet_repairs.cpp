#include "engine/hydraulics/inlet_repairs.h"

namespace gullymark::engine {

void fill_blank(int first, Column column, std::string_view text) {
    if (holds(first, [&] { return says(column, ""); })) {
        step(first + 1, column, [&] { return text; });
    }
}

void fill_blank(int first, Column column, Column other) {
    if (holds(first, [&] { return says(column, ""); })) {
        step(first + 1, column, [&] { return Copied(other); });
    }
}

}  // namespace gullymark::engine
