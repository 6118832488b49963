#include "review/inlet_list.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "engine/units.h"
#include "review/texts.h"
#include "section/measures.h"

namespace gullymark::review {
namespace {

using engine::Column;
using engine::InletRecord;

const FreshInlet* fresh_of(const Reviewed& reviewed, std::size_t inlet) {
    const auto found = reviewed.fresh.inlets.find(inlet);
    return found == reviewed.fresh.inlets.end() ? nullptr : &found->second;
}

const std::string& spread_of(const InletRecord& record) {
    const std::string& opening = record.text(Column::OPENSPREAD);
    const std::string& gutter = record.text(Column::GUTTERSPREAD);
    const bool gutter_is_larger =
        section::in_sump(record) && number_of(gutter).value_or(0) > number_of(opening).value_or(0);
    return gutter_is_larger ? gutter : opening;
}

/// 0 is the worst.
int rank_of_state(const Reviewed& reviewed, std::size_t inlet) {
    const FreshInlet* fresh = fresh_of(reviewed, inlet);
    return fresh == nullptr ? 2 : fresh->solved ? 1 : 0;
}

std::string state_of(const Reviewed& reviewed, std::size_t inlet) {
    constexpr std::array words{"not solved", "stale", "up to date"};
    return words.at(static_cast<std::size_t>(rank_of_state(reviewed, inlet)));
}

std::optional<ListColumn> stored_beside(ListColumn column) {
    switch (column) {
        case ListColumn::fresh_total:
            return ListColumn::total;
        case ListColumn::fresh_spread:
            return ListColumn::spread;
        case ListColumn::fresh_bypass:
            return ListColumn::bypass;
        default:
            return std::nullopt;
    }
}

const std::string& text_of(const InletRecord& record, ListColumn column) {
    switch (column) {
        case ListColumn::number:
            return record.text(Column::INLET_NUMBER);
        case ListColumn::station:
            return record.text(Column::STATION);
        case ListColumn::total:
            return record.text(Column::TOTAL_DISCHARGE);
        case ListColumn::spread:
            return spread_of(record);
        case ListColumn::bypass:
            return record.text(Column::QCARRY);
        case ListColumn::type:
            return record.text(Column::INLET_TYPE);
        default:
            return record.text(Column::INLET_LOCATION);
    }
}

/// Numbers come before texts.
using Key = std::pair<double, std::string>;

std::vector<Key> keys_of(const Reviewed& reviewed, ListColumn column) {
    constexpr double behind_numbers = 1e308;
    std::vector<Key> keys;
    keys.reserve(reviewed.project.inlets.size());
    for (std::size_t i = 0; i < reviewed.project.inlets.size(); ++i) {
        if (column == ListColumn::state) {
            keys.emplace_back(rank_of_state(reviewed, i), "");
        } else if (column == ListColumn::station) {
            keys.emplace_back(reviewed.places.empty() ? i : reviewed.places[i], "");
        } else {
            std::string text = list_cell(reviewed, i, column);
            const auto number = number_of(text);
            keys.emplace_back(number.value_or(behind_numbers), number ? "" : std::move(text));
        }
    }
    return keys;
}

}  // namespace

ListHeading heading_of(ListColumn column) {
    const auto with_unit = [](const char* text, Column of) {
        return ListHeading{text, std::string(engine::unit_text(engine::column_unit(of)))};
    };
    switch (column) {
        case ListColumn::number:
            return {"Inlet", ""};
        case ListColumn::state:
            return {"State", ""};
        case ListColumn::station:
            return {"Station", ""};
        case ListColumn::total:
            return with_unit("Total", Column::TOTAL_DISCHARGE);
        case ListColumn::fresh_total:
            return with_unit("Fresh total", Column::TOTAL_DISCHARGE);
        case ListColumn::spread:
            return with_unit("Spread", Column::OPENSPREAD);
        case ListColumn::fresh_spread:
            return with_unit("Fresh spread", Column::OPENSPREAD);
        case ListColumn::bypass:
            return with_unit("Bypass", Column::QCARRY);
        case ListColumn::fresh_bypass:
            return with_unit("Fresh bypass", Column::QCARRY);
        case ListColumn::type:
            return {"Type", ""};
        default:
            return {"Location", ""};
    }
}

bool is_number_column(ListColumn column) {
    return column >= ListColumn::total && column <= ListColumn::fresh_bypass;
}

std::string list_cell(const Reviewed& reviewed, std::size_t inlet, ListColumn column) {
    if (column == ListColumn::state) {
        return state_of(reviewed, inlet);
    }
    const auto stored = stored_beside(column);
    const InletRecord& record =
        stored ? reviewed.fresh.inlet(reviewed.project, inlet) : reviewed.project.inlets[inlet];
    return text_of(record, stored.value_or(column));
}

bool is_stale_cell(const Reviewed& reviewed, std::size_t inlet, ListColumn column) {
    const auto stored = stored_beside(column);
    return stored && fresh_of(reviewed, inlet) != nullptr &&
           !is_same_number(list_cell(reviewed, inlet, column), list_cell(reviewed, inlet, *stored));
}

bool is_stale(const Reviewed& reviewed, std::size_t inlet) {
    return fresh_of(reviewed, inlet) != nullptr;
}

std::vector<std::size_t> sort_inlets(const Reviewed& reviewed, ListColumn column, bool descending) {
    std::vector<std::size_t> order(reviewed.project.inlets.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const std::vector<Key> keys = keys_of(reviewed, column);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t one, std::size_t other) {
        return descending ? keys[other] < keys[one] : keys[one] < keys[other];
    });
    return order;
}

}  // namespace gullymark::review
