#include "catalogue/pick.h"

#include <algorithm>
#include <array>

#include "engine/step.h"
#include "engine/words.h"
#include "platform/number_text.h"

namespace gullymark::catalogue {
namespace {

using engine::Column;
using engine::number_in;
using engine::open_inlet;
using engine::Real;
using engine::step;

// The first text names no row: the P1/P2/P3 rows at a curb close their bracket and so count as without one.
constexpr auto standards_with_curb =
    std::to_array<std::string_view>({"P1/P2/P3(Curb", "PR(Curb)", "PB(Curb)", "B(Curb/barrier)"});

std::string_view curb_option(std::string_view standard) {
    const bool at_curb = std::find(standards_with_curb.begin(), standards_with_curb.end(), standard) !=
                         standards_with_curb.end();
    return at_curb ? engine::words::with_curb : engine::words::without_curb;
}

Real open_share() {
    return 1.0 - number_in(Column::GRATEPERCLOG) / 100.0;
}

std::string gross_text(Real number) {
    return platform::format_number(number.number(), "0.000");
}

void work_back_gross_area() {
    step(1, Column::GRATEAREA, [] { return gross_text(number_in(Column::RAREA) / open_share()); });
}

void work_back_gross_perimeter() {
    step(2, Column::GRATEPERI, [] {
        const Real length = number_in(Column::INLETLENGTH);
        return gross_text(length + (number_in(Column::EFFPERI) - length) / open_share());
    });
}

std::string_view trim_field(const Table& table, std::string_view field) {
    if (table.pads_names) {
        return platform::trim_blanks(field);
    }
    return field.substr(0, field.find_last_not_of(' ') + 1);
}

void take_field(const Table& table, Column target, std::string_view field) {
    open_inlet.set(target, field);
    if (target == Column::INLET_SUBTYPE && table.tells_curb) {
        open_inlet.set(Column::CURBOPTION, curb_option(field));
    } else if (target == Column::RAREA) {
        work_back_gross_area();
    } else if (target == Column::EFFPERI) {
        work_back_gross_perimeter();
    }
}

}  // namespace

void pick(const Table& table, std::string_view row_text) {
    const std::string_view trimmed = platform::trim_blanks(row_text);
    if (trimmed.empty() || trimmed.front() == '\t') {
        return;
    }
    std::string_view rest = row_text;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const bool last = i + 1 == table.columns.size();
        const std::size_t end = last ? std::string_view::npos : rest.find('\t');
        if (const auto target = table.columns[i].target) {
            take_field(table, *target, trim_field(table, rest.substr(0, end)));
        }
        if (end == std::string_view::npos) {
            return;
        }
        rest.remove_prefix(end + 1);
    }
}

}  // namespace gullymark::catalogue
