#include "editor/defaults.h"

#include <array>
#include <string>
#include <vector>

#include "editor/field_rules.h"
#include "editor/form_access.h"
#include "editor/life_cycle.h"
#include "engine/hydraulics/grate_types.h"
#include "engine/unit_constants.h"
#include "engine/words.h"
#include "platform/number_text.h"
#include "store/project_session.h"

namespace gullymark::editor {
namespace {

using engine::by_units;
using enum FieldId;
using namespace engine::words;

struct DefaultText {
    FieldId field;
    std::string_view english;
    std::string_view metric;
};

// clang-format off
constexpr auto flow_defaults = std::to_array<DefaultText>({
    {discharge1,          "0.000", "0.000"},
    {discharge2,          "0.000", "0.000"},
    {overland_flow,       "0.000", "0.000"},
    {preinlet1,           "",      ""},
    {carryover1,          "0.0",   "0.0"},
    {preinlet2,           "",      ""},
    {carryover2,          "0.0",   "0.0"},
    {overland_flow,       "0.0",   "0.0"},
    {Ldischarge_override, "NO",    "NO"},
    {Rdischarge_override, "NO",    "NO"},
});

// A new inlet and a changed type or location write the same texts, in orders of their own. The second value of txthco
// is meant: both are written, and the later one stands.
constexpr auto new_inlet_defaults = std::to_array<DefaultText>({
    {cboLength,        "2.00",   "0.600"},
    {cboLCOUG,         "2.00",   "0.600"},
    {allowable_spread, "8.0",    "3.0"},
    {curb_height,      "6.0",    "150"},
    {txtS,             "0.0100", "0.01000"},
    {txtn,             "0.016",  "0.016"},
    {txtW,             "2.00",   "0.600"},
    {txtSx,            "0.0208", "0.0208"},
    {txtSw,            "0.0833", "0.0833"},
    {txtSdashW,        "0.3333", "0.3333"},
    {txtWa,            "2.00",   "0.600"},
    {txta,             "6.00",   "150"},
    {txtWg,            "2.00",   "0.600"},
    {txtzl,            "3.00",   "3.000"},
    {txtzr,            "3.00",   "3.000"},
    {txthco,           "4.00",   "200"},
    {txtAngle,         "45.00",  "45.00"},
    {txtPeri,          "6.00",   "2.00"},
    {txtArea,          "4.000",  "1.200"},
    {txtslotw,         "4.00",   "100"},
    {txthco,           "6.00",   "150"},
});

constexpr auto inlet_data_order = std::to_array<FieldId>({
    cboLength, cboLCOUG, txtS, txtn, txtW, txtSx, txtSw, txtWa, txtSdashW, txta, txtWg, txtzl, txtzr, txthco, txtAngle,
    txtPeri, txtArea, txtslotw,
});

struct UnitCaption {
    FieldId group;
    std::string_view metric;
};

constexpr auto metric_captions = std::to_array<UnitCaption>({
    {ftm, "m"}, {ftpftmpm, "m/m"}, {cfscms, "cms"}, {inmm, "mm"}, {sfsm, "sm"}, {ftpsecmpsec, "m/sec"},
    {inmmphr, "mm/hr"}, {lblachc, "Hc"},
});
// clang-format on

void write(const DefaultText& row) {
    set_text(row.field, by_units(row.english, row.metric));
}

/// The first default of a field.
const DefaultText& default_of(FieldId id) {
    const auto* row = new_inlet_defaults.begin();
    while (row->field != id) {
        ++row;
    }
    return *row;
}

void select_throat() {
    select_entry(cboThroat, 2);
    set_text(cboThroat, vertical_throat);
}

}  // namespace

void follow_project_units() {
    engine::UnitSystem = store::session.projectUnits;
}

void fill_clog_entries() {
    auto& entries = field(cboClog).entries;
    entries = {"0", "10"};
    for (int quarter = 1; quarter <= 4; ++quarter) {
        entries.push_back(std::to_string(25 * quarter));
    }
}

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

void SetFormDefaults() {
    follow_project_units();
    for (const auto& row : flow_defaults) {
        write(row);
    }
    field(Left_override).checked = false;
    field(Right_override).checked = false;
    set_text(storm_frequency, "10");
    show_tab(0);
    for (const auto& row : new_inlet_defaults) {
        write(row);
    }
    engine::set_unit_defaults();
    if (!engine::is_english()) {
        for (const auto& [group, caption] : metric_captions) {
            field(group).caption = caption;
        }
    }
    for (const FieldId list : {offset_location, inlet_type, inlet_location, cboCurb}) {
        select_entry(list, 0);
    }
    select_throat();
    fix_throat_angle(90.0);
    select_entry(cboClog, 0);
    select_entry(cboType, 0);
}

void SetInletDefaults() {
    for (const FieldId id : inlet_data_order) {
        write(default_of(id));
    }
    set_text(txthco, by_units("6.00", "150"));
    select_entry(cboCurb, 0);
    select_throat();
    select_entry(cboType, 0);
    select_entry(cboClog, 0);
    if (text(inlet_type) == combination_inlet) {
        set_text(cboLCOUG, "0.0");
    }
    if (text(inlet_type) == curb_inlet && in_sump()) {
        set_text(cboClog, "10");
    }
    fix_throat_angle(90.0);
}

void select_entry(FieldId list, std::size_t index) {
    const auto& entries = field(list).entries;
    if (index < entries.size()) {
        picked(list, entries[index]);
    }
}

void fix_throat_angle(double degrees) {
    auto& angle = field(txtAngle);
    angle.colour = platform::Colour::grey;
    angle.locked = true;
    set_text(txtAngle, platform::format_number(degrees, screen_field(txtAngle).format));
}

}  // namespace gullymark::editor
