#include "reports/cell_steps.h"

#include <cmath>

#include "platform/failure.h"
#include "platform/number_text.h"
#include "platform/outside.h"

namespace gullymark::reports {
namespace {

using platform::CellPosition;

struct Writer {
    const Place& place;
    int base;

    void operator()(const TextOf& source) const { place.write(place.text(source.column)); }
    void operator()(const NumberOf& source) const { place.write(place.number(source.column)); }
    void operator()(const ProjectText& source) const { place.write(store::session.*source.text); }
    void operator()(const Literal& source) const { place.write(source.text); }
    void operator()(const Today& /*source*/) const { place.sheet.write(place.cell, platform::today()); }
    void operator()(const Product& source) const { place.write(number(source.left) * number(source.right)); }
    void operator()(const Sum& source) const { place.write(number(source.left) + number(source.right)); }
    void operator()(const YesIfLess& source) const {
        place.write(platform::is_less(value(source.left), value(source.right)) ? std::string_view("YES")
                                                                               : "NO");
    }
    void operator()(const Rule& source) const { source.write(place); }

    [[nodiscard]] platform::CellValue value(CellPosition cell) const {
        return place.sheet.read({base + cell.row, cell.column});
    }
    [[nodiscard]] double number(CellPosition cell) const { return platform::cell_number(value(cell)); }
};

}  // namespace

void Place::write(double number) const {
    if (!std::isfinite(number)) {
        throw platform::Failure("The number is too large.");
    }
    sheet.write(cell, number);
}

double Place::number(engine::Column column) const {
    const auto read = platform::read_number(inlet.text(column));
    if (read.fault != platform::NumberFault::none) {
        throw platform::Failure("The column holds no number.");
    }
    return read.number;
}

void write_cells(platform::Sheet& sheet, int base, std::span<const CellStep> steps,
                 const engine::InletRecord& inlet) {
    for (const CellStep& step : steps) {
        platform::ignore_failure([&] {
            const Place place{sheet, {base + step.cell.row, step.cell.column}, inlet};
            std::visit(Writer{place, base}, step.source);
        });
    }
}

}  // namespace gullymark::reports
