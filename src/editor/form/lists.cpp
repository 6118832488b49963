#include "editor/form/lists.h"

#include <string>
#include <string_view>
#include <vector>

#include "editor/form/form_access.h"
#include "editor/form/units.h"
#include "engine/hydraulics/grate_types.h"
#include "engine/words.h"

namespace gullymark::editor {

using enum FieldId;
using namespace engine::words;

void FillFormLists() {
    follow_project_units();
    const auto fill = [](FieldId list, const std::vector<std::string_view>& entries) {
        field(list).entries.assign(entries.begin(), entries.end());
    };
    fill(inlet_type, {curb_inlet, grate_inlet, combination_inlet, slotted_inlet, ditch_inlet});
    fill(inlet_location, {continuous_grade, sump});
    fill(offset_location, {"RIGHT", "LEFT"});
    fill(flow_direction, {"Low Station", "High Station", "High/Low Station", "Overland"});
    fill(cboThroat, {horizontal_throat, inclined_throat, vertical_throat});
    fill(cboCurb, {with_curb, without_curb});
    fill_clog_entries();
    fill(cboType, engine::grate_names());
}

void fill_clog_entries() {
    auto& entries = field(cboClog).entries;
    entries = {"0", "10"};
    for (int quarter = 1; quarter <= 4; ++quarter) {
        entries.push_back(std::to_string(25 * quarter));
    }
}

void pick_entry(FieldId list, std::size_t index, void (*click)()) {
    const auto& entries = field(list).entries;
    if (index < entries.size()) {
        set_text(list, entries[index]);
        click();
    }
}

}  // namespace gullymark::editor
