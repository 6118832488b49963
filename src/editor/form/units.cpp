#include "editor/form/units.h"

#include <array>
#include <string_view>

#include "editor/form/form_access.h"
#include "engine/unit_constants.h"
#include "store/project_session.h"

namespace gullymark::editor {
namespace {

using enum FieldId;

struct UnitCaption {
    FieldId group;
    std::string_view metric;
};

// clang-format off
constexpr auto metric_captions = std::to_array<UnitCaption>({
    {ftm, "m"}, {ftpftmpm, "m/m"}, {cfscms, "cms"}, {inmm, "mm"}, {sfsm, "sm"}, {ftpsecmpsec, "m/sec"},
    {inmmphr, "mm/hr"}, {lblachc, "Hc"},
});
// clang-format on

}  // namespace

void follow_project_units() {
    engine::UnitSystem = store::session.projectUnits;
}

void show_unit_captions() {
    if (engine::is_english()) {
        return;
    }
    for (const auto& [group, caption] : metric_captions) {
        field(group).caption = caption;
    }
}

}  // namespace gullymark::editor
