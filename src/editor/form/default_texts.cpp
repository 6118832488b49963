#include "editor/form/default_texts.h"

#include <array>
#include <string_view>

#include "editor/form/form_access.h"
#include "engine/unit_constants.h"

namespace gullymark::editor {
namespace {

using engine::by_units;
using enum FieldId;

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
// is deliberate: both are written, and the later one stands.
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

}  // namespace

void write_flow_defaults() {
    for (const auto& row : flow_defaults) {
        write(row);
    }
}

void write_new_inlet_defaults() {
    for (const auto& row : new_inlet_defaults) {
        write(row);
    }
}

void write_inlet_data_defaults() {
    for (const FieldId id : inlet_data_order) {
        write(default_of(id));
    }
    write(new_inlet_defaults.back());
}

}  // namespace gullymark::editor
