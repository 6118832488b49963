#include "editor/form/screen_fields.h"

#include <algorithm>

namespace gullymark::editor {
namespace {

constexpr std::array<std::string_view, field_count> field_names = {
#define SCREEN_FIELD(name, ...) #name,
#include "editor/form/screen_fields.def"
#undef SCREEN_FIELD
};

}  // namespace

std::string_view field_name(FieldId id) {
    return field_names.at(static_cast<std::size_t>(id));
}

std::optional<FieldId> field_named(std::string_view name) {
    const auto* const found = std::ranges::find(field_names, name);
    if (found == field_names.end()) {
        return std::nullopt;
    }
    return static_cast<FieldId>(found - field_names.begin());
}

FieldId field_of(engine::Column column) {
    static constexpr auto fields = [] {
        std::array<FieldId, engine::column_count> of_columns{};
        for (const FieldId id : all_fields) {
            if (const auto bound = screen_field(id).column) {
                of_columns.at(static_cast<std::size_t>(*bound)) = id;
            }
        }
        return of_columns;
    }();
    return fields.at(static_cast<std::size_t>(column));
}

}  // namespace gullymark::editor
