#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "editor/form/field_events.h"
#include "editor/form/field_keys.h"
#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "editor/windows/toolbar.h"
#include "editor/windows/workspace_menu.h"
#include "platform/outside.h"
#include "support/fresh_start.h"
#include "support/outside_double.h"
#include "support/project_file.h"

namespace gullymark::editor {

using platform::Answer;
using platform::Box;
using platform::BoxKind;
using platform::Color;
using Boxes = std::vector<Box>;
using enum FieldId;

/// A project file, open, with the workspace not yet shown, and a user who goes from field to field.
class EditorTest : public testing::Test {
  protected:
    testing_support::OutsideDouble user;
    testing_support::TempFolder folder;
    std::string path = folder.path("road.gmk");

    explicit EditorTest(const std::string& units = "ENGLISH") {
        testing_support::forget_everything();
        testing_support::make_project_file(path);
        store::session.projectFilePath = path;
        store::session.projectId = "P-1";
        store::session.projectName = "Mill Road";
        store::session.projectCounty = "Mobile";
        store::session.projectState = "AL";
        store::session.projectUnits = units;
        store::project_store.connection.open(path);
    }
    ~EditorTest() override { testing_support::forget_everything(); }

    /// Rows of INLET with these columns, past the program.
    void put_inlets(const std::vector<std::map<std::string, std::string>>& rows) const {
        testing_support::put_inlets(path, rows);
    }
    /// What a statement gives, past the program: "1|A" and a line for each further row.
    std::string stored(const std::string& statement) const {
        return testing_support::run_sql(path, statement);
    }

    // What the user does.

    /// Goes to a field and types, key by key, in place of what stands there.
    static void type(FieldId id, std::string_view keys) {
        go_to(id);
        std::string typed;
        for (const char key : keys) {
            const auto passed = filter_key(id, static_cast<unsigned char>(key), typed, "");
            if (passed != 0) {
                typed += static_cast<char>(passed);
            }
            edited(id, typed);
        }
        if (keys.empty()) {
            edited(id, "");
        }
    }
    static void pick(FieldId id, std::string_view entry) {
        go_to(id);
        opened_list(id);
        picked(id, entry);
    }
    /// Leaves the field with the focus, then goes to another; stays where a leave is refused.
    static bool go_to(FieldId id) {
        if (frminletMDIC.focused == id) {
            return true;
        }
        if (!leave_focused_field()) {
            return false;
        }
        const int tab = screen_field(id).tab;
        if (frminletMDIC.screen.tab != tab) {
            tab_clicked(tab);
        }
        EXPECT_TRUE(frminletMDIC.screen.editable(id)) << field_name(id);
        enter(id);
        return true;
    }
    static void click_tab(int tab) {
        if (leave_focused_field()) {
            tab_clicked(tab);
        }
    }

    static const std::string& shown(FieldId id) { return frminletMDIC.screen.text(id); }
    static const platform::Field& field(FieldId id) { return frminletMDIC.screen[id]; }

    /// The boxes since the last call.
    Boxes boxes() { return std::exchange(user.boxes, {}); }

    /// Begins an inlet and types its number.
    static void add_inlet(std::string_view number) {
        mnuAddinlet_Click();
        type(Inlet_Number, number);
        leave_focused_field();
    }
    /// Begins an inlet of the first kind with a typed discharge, cfs.
    static void add_curb_inlet(std::string_view number, std::string_view discharge) {
        add_inlet(number);
        click_tab(1);
        clicked(Left_override);
        type(discharge1, discharge);
        leave_focused_field();
    }
    static void solve_and_save() {
        Toolbar1_ButtonClick(10);
        mnuSaveinlet_Click();
    }
};

inline Box plain(const std::string& text) {
    return {.kind = BoxKind::plain, .text = text};
}
inline Box information(const std::string& text) {
    return {.kind = BoxKind::information, .text = text};
}
inline Box warning(const std::string& text) {
    return {.kind = BoxKind::warning, .text = text};
}
inline Box question(const std::string& text) {
    return {.kind = BoxKind::warning_question, .text = text};
}

/// What is told while another program keeps the file to itself.
inline const Box locked = plain("database is locked");

}  // namespace gullymark::editor
