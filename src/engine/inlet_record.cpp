#include "engine/inlet_record.h"

#include <algorithm>

namespace gullymark::engine {
namespace {

constexpr std::array<std::string_view, column_count> column_names = {
#define INLET_COLUMN(name, unit, meaning) #name,
#include "engine/inlet_columns.def"
};

const std::string empty_text;

}  // namespace

InletRecord open_inlet;

std::string_view column_name(Column column) {
    return column_names.at(static_cast<std::size_t>(column));
}

std::optional<Column> column_named(std::string_view name) {
    const auto* const found = std::find(column_names.begin(), column_names.end(), name);
    if (found == column_names.end()) {
        return std::nullopt;
    }
    return static_cast<Column>(found - column_names.begin());
}

const std::string& InletRecord::text(Column column) const {
    const auto& value = values_[index(column)];
    return value ? *value : empty_text;
}

bool InletRecord::is_null(Column column) const {
    return !values_[index(column)].has_value();
}

void InletRecord::set(Column column, std::string_view text) {
    auto& value = values_[index(column)];
    if (!value) {
        value.emplace(text);
    } else if (text.empty()) {  // half of all writes empty a result
        value->clear();
    } else {
        value->assign(text);
    }
    if (!changed_) {
        changed_ = true;
        if (on_first_change != nullptr) {
            on_first_change();
        }
    }
}

}  // namespace gullymark::engine
