#pragma once

#include "editor/editor_test.h"
#include "editor/form/field_events.h"
#include "editor/form/screen_fields.h"
#include "editor/windows/workspace_menu.h"

namespace gullymark::editor {

/// A new inlet in "ADD", its number typed.
struct FieldRules : EditorTest {
    explicit FieldRules(const std::string& units = "ENGLISH") : EditorTest(units) {
        put_inlets({{{"INLET_NUMBER", "1"}, {"PREINLET1", "7"}}});
        show_workspace();
        add_inlet("N1");
    }
    /// Types into a field and leaves it; what it then shows.
    static std::string typed(FieldId id, std::string_view keys) {
        type(id, keys);
        leave_focused_field();
        return shown(id);
    }
    void fill_results() { engine::open_inlet.set(engine::Column::QINT, "1.000"); }
};
struct MetricFieldRules : FieldRules {
    MetricFieldRules() : FieldRules("METRIC") {}
};

}  // namespace gullymark::editor
