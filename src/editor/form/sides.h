#pragma once

#include "editor/form/screen_fields.h"

/// The two sides from which an inlet takes flow. On a continuous grade the left one is the only one.
namespace gullymark::editor {

struct Side {
    FieldId override_box;
    FieldId override_text;
    FieldId area;
    FieldId coefficient;
    FieldId intensity;
    FieldId discharge;
    FieldId preinlet;
    FieldId carryover;
};

inline constexpr Side left_side{
    .override_box = FieldId::Left_override,
    .override_text = FieldId::Ldischarge_override,
    .area = FieldId::runoff_area,
    .coefficient = FieldId::runoff_coeff,
    .intensity = FieldId::intensity,
    .discharge = FieldId::discharge1,
    .preinlet = FieldId::preinlet1,
    .carryover = FieldId::carryover1,
};

inline constexpr Side right_side{
    .override_box = FieldId::Right_override,
    .override_text = FieldId::Rdischarge_override,
    .area = FieldId::runoff_area2,
    .coefficient = FieldId::runoff_coeff2,
    .intensity = FieldId::intensity2,
    .discharge = FieldId::discharge2,
    .preinlet = FieldId::preinlet2,
    .carryover = FieldId::carryover2,
};

}  // namespace gullymark::editor
