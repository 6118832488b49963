#include "editor/form/field_enabling.h"

#include <array>

#include "editor/form/form_access.h"
#include "editor/form/screen_pages.h"
#include "engine/words.h"

namespace gullymark::editor {
namespace {

using platform::Color;
using enum FieldId;
using namespace engine::words;

enum class Offer : unsigned char {
    E,  // enabled, in the window color
    C,  // disabled, emptied, gray
    D,  // disabled, gray, its text kept
    T,  // the angle, by the throat
    o,  // not touched
};

/// The columns of the table below.
enum class InletKind : unsigned char {
    curb_on_grade,
    curb_in_sump,
    grate_on_grade,
    grate_in_sump,
    combo_on_grade,
    combo_in_sump,
    slotted_in_sump,
    ditch_on_grade,
    ditch_in_sump,
};

struct FieldOffer {
    FieldId field;
    std::array<Offer, 9> kinds;
};

using enum Offer;

// clang-format off
constexpr auto offers = std::to_array<FieldOffer>({
    //           curb  curb  grate grate combo combo slot  ditch ditch
    //           grade sump  grade sump  grade sump  sump  grade sump
    {cboLength, {E,    E,    E,    E,    E,    E,    E,    E,    E}},
    {txtS,      {E,    E,    E,    E,    E,    E,    E,    E,    D}},
    {txtn,      {E,    E,    E,    E,    E,    E,    E,    E,    C}},
    {txtW,      {E,    E,    E,    E,    E,    E,    E,    E,    C}},
    {txtSx,     {E,    E,    E,    E,    E,    E,    E,    C,    C}},
    {txtSw,     {E,    E,    E,    E,    E,    E,    E,    C,    C}},
    {txtSdashW, {E,    E,    E,    E,    E,    E,    E,    C,    C}},
    {txtWa,     {E,    E,    E,    E,    E,    E,    E,    C,    C}},
    {txta,      {o,    o,    o,    o,    o,    o,    o,    C,    C}},
    {txtWg,     {C,    C,    E,    E,    E,    E,    C,    E,    E}},
    {txtzl,     {C,    C,    C,    C,    C,    C,    C,    E,    C}},
    {txtzr,     {C,    C,    C,    C,    C,    C,    C,    E,    C}},
    {cboLCOUG,  {C,    C,    C,    C,    E,    C,    C,    C,    C}},
    {cboType,   {C,    C,    E,    C,    E,    C,    C,    E,    C}},
    {txthco,    {C,    E,    C,    C,    C,    E,    C,    C,    C}},
    {cboThroat, {C,    E,    C,    C,    C,    E,    C,    C,    C}},
    {txtAngle,  {C,    T,    C,    C,    C,    T,    C,    C,    C}},
    {txtPeri,   {C,    C,    C,    E,    C,    E,    C,    C,    E}},
    {txtArea,   {C,    C,    C,    E,    C,    E,    C,    C,    E}},
    {cboClog,   {E,    E,    E,    E,    E,    E,    E,    C,    D}},
    {cboCurb,   {C,    C,    C,    E,    C,    C,    C,    C,    C}},
    {txtslotw,  {C,    C,    C,    C,    C,    C,    E,    C,    C}},
});

struct KindSetup {
    std::string_view type;
    std::string_view location;
    void (*set_up)();
};

constexpr auto setups = std::to_array<KindSetup>({
    {curb_inlet,        continuous_grade, EnableCurbOnGrade},
    {curb_inlet,        sump,             EnableCurbInSump},
    {grate_inlet,       continuous_grade, EnableGrateOnGrade},
    {grate_inlet,       sump,             EnableGrateInSump},
    {combination_inlet, continuous_grade, EnableComboOnGrade},
    {combination_inlet, sump,             EnableComboInSump},
    {slotted_inlet,     continuous_grade, EnableCurbOnGrade},
    {slotted_inlet,     sump,             EnableSlottedInSump},
    {ditch_inlet,       continuous_grade, EnableDitchOnGrade},
    {ditch_inlet,       sump,             EnableDitchInSump},
});

// txtSdashW is not among them.
constexpr auto inlet_data_fields = std::to_array<FieldId>({
    txtS, txtn, txtW, txtSx, txtSw, txtWa, txta, txtWg, txtzl, txtzr, cboLength, cboLCOUG, cboType, txthco, cboThroat,
    txtAngle, txtPeri, txtArea, cboClog, cboCurb, txtslotw,
});
// clang-format on

void offer_angle_by_throat() {
    auto& angle = field(txtAngle);
    const bool inclined = text(cboThroat) == inclined_throat;
    angle.color = inclined ? Color::window : Color::gray;
    angle.locked = !inclined;
    if (inclined) {
        angle.enabled = true;
    }
}

/// First what is enabled, then the texts, then the colors.
void offer_fields(InletKind kind) {
    const auto of_kind = [kind](const FieldOffer& row) {
        return row.kinds.at(static_cast<std::size_t>(kind));
    };
    for (const auto& row : offers) {
        if (of_kind(row) != o && of_kind(row) != T) {
            field(row.field).enabled = of_kind(row) == E;
        }
    }
    for (const auto& row : offers) {
        if (of_kind(row) == C) {
            set_text(row.field, "");
        }
    }
    for (const auto& row : offers) {
        if (of_kind(row) == T) {
            offer_angle_by_throat();
        } else if (of_kind(row) != o) {
            field(row.field).color = of_kind(row) == E ? Color::window : Color::gray;
        }
    }
}

}  // namespace

void ResetInletDataFields() {
    for (const FieldId id : inlet_data_fields) {
        field(id).enabled = false;
    }
    for (const FieldId id : inlet_data_fields) {
        field(id).color = Color::gray;
    }
}

void ShowInletDataFields() {
    show_inlet_captions(frminletMDIC.screen);
    setup_fields(text(inlet_type), text(inlet_location));
}

void setup_fields(std::string_view type, std::string_view location) {
    for (const auto& setup : setups) {
        if (setup.type == type && setup.location == location) {
            setup.set_up();
            return;
        }
    }
}

void EnableCurbOnGrade() {
    offer_fields(InletKind::curb_on_grade);
}
void EnableCurbInSump() {
    offer_fields(InletKind::curb_in_sump);
}
void EnableGrateOnGrade() {
    offer_fields(InletKind::grate_on_grade);
}
void EnableGrateInSump() {
    offer_fields(InletKind::grate_in_sump);
}
void EnableComboOnGrade() {
    offer_fields(InletKind::combo_on_grade);
}
void EnableComboInSump() {
    offer_fields(InletKind::combo_in_sump);
}
void EnableSlottedInSump() {
    offer_fields(InletKind::slotted_in_sump);
}
void EnableDitchOnGrade() {
    offer_fields(InletKind::ditch_on_grade);
}
void EnableDitchInSump() {
    offer_fields(InletKind::ditch_in_sump);
}

}  // namespace gullymark::editor
