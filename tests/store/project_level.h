#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/files.h"
#include "platform/outside.h"
#include "platform/row_set.h"
#include "store/main_menu.h"
#include "store/project_details.h"
#include "store/project_life_cycle.h"
#include "store/project_session.h"
#include "store/project_store.h"
#include "store/windows.h"
#include "support/outside_double.h"
#include "support/sqlite_file.h"

namespace gullymark::store {

using platform::Answer;
using platform::Box;
using platform::BoxKind;
using platform::Color;

using Steps = std::vector<std::string>;
using Boxes = std::vector<Box>;
using Values = std::map<std::string, std::optional<std::string>>;

/// What the stand-in for ending the program throws, since the real one does not return.
struct ProgramEnded {};

/// A started program whose windows are replaced by a list of what was asked of them, in order.
class ProjectLevel : public testing::Test {
  protected:
    testing_support::OutsideDouble user;
    testing_support::TempFolder folder;
    Steps steps;
    /// What the user does while the details form is shown; Exit when it is empty.
    std::function<void()> in_details_form;
    /// Looks at the values that stand when a step is asked for.
    std::function<void(const std::string& step)> look;

    ProjectLevel() {
        session = {};
        frmsoftwaremain = {};
        frmProject = {};
        project_store = {};
        windows = {};
        const std::string program = folder.path("program");
        std::filesystem::create_directory(program);
        platform::copy_file(GULLYMARK_TEMPLATE, program + "/GullymarkAL10.rdb");
        platform::set_program_folder(program);
        record_outside();
        record_windows();
        load_main_window();
        frmsoftwaremain.visible = true;
    }
    ~ProjectLevel() override {
        frmProject = {};
        project_store = {};
        windows = {};
        platform::set_program_folder("");
    }

    void record(const std::string& step) {
        steps.push_back(step);
        if (look) {
            look(step);
        }
    }

    void forget_steps() {
        steps.clear();
        user.boxes.clear();
    }

    /// A new file like the template, with no row.
    std::string make_empty_project(const std::string& name) {
        platform::copy_file(GULLYMARK_TEMPLATE, folder.path(name));
        return folder.path(name);
    }

    /// A project file with one row: these columns, changed as told, and nothing else.
    std::string make_project(const std::string& name, const Values& changes = {}) {
        Values values = {
            {"PROJECT_ID", "P-1"},     {"PROJECT_NAME", "Mill Road"}, {"DESCRIPTION", "Widening"},
            {"LOCATION", "Bay Front"}, {"COUNTY", "Mobile"},          {"STATE", "AL"},
            {"DESIGNER", "A. Smith"},  {"UNITS", "ENGLISH"},          {"PRODUCT_NAME", "GULLYMARKAL"},
            {"MAJOR_RELEASE", "1"},    {"RELEASE_DATE", "MAY 2010"},
        };
        for (const auto& [column, value] : changes) {
            values[column] = value;
        }
        std::string columns;
        std::string texts;
        for (const auto& [column, value] : values) {
            columns += (columns.empty() ? "" : ", ") + column;
            texts += (texts.empty() ? "" : ", ") + (value ? "'" + *value + "'" : std::string("NULL"));
        }
        make_empty_project(name);
        run(name, "INSERT INTO PROJECT (" + columns + ") VALUES (" + texts + ")");
        return folder.path(name);
    }

    /// A copy of one of the files under tests/files.
    void copy_kept_file(const std::string& name) const {
        platform::copy_file(std::string(GULLYMARK_TEST_DIR) + "/files/" + name, folder.path(name));
    }

    /// Changes a file past the program.
    void run(const std::string& name, const std::string& statements) {
        testing_support::run_sql(folder.path(name), statements);
    }

    [[nodiscard]] int count_rows(const std::string& name) const {
        return std::stoi(testing_support::run_sql(folder.path(name), "SELECT count(*) FROM PROJECT"));
    }

    /// The only row of PROJECT in a file.
    [[nodiscard]] Values stored(const std::string& name) const {
        platform::Connection connection;
        connection.open(folder.path(name));
        platform::RowSet rows;
        rows.open(connection, "SELECT * FROM PROJECT");
        EXPECT_EQ(rows.record_count(), 1U);
        Values values;
        for (const auto& column : rows.columns()) {
            values[column] = rows.value(column);
        }
        return values;
    }

    void open_project(const std::string& name) {
        user.choices.emplace_back(folder.path(name));
        mnuopenProj_Click();
    }

    void create_project(const std::string& name) {
        user.choices.emplace_back(folder.path(name));
        mnucreateProj_Click();
    }

    /// The user types into a field of the details form.
    static void type(std::string_view name, std::string_view text) {
        for (const DetailsField& field : details_fields) {
            if (field.name == name) {
                edit_details_field(field, text);
                return;
            }
        }
        ADD_FAILURE() << "no field " << name;
    }

    /// "on" or "off" for Create, Open, Update and Close.
    [[nodiscard]] static std::string menu_state() {
        std::string text;
        for (const auto& item : {frmsoftwaremain.mnucreateProj, frmsoftwaremain.mnuopenProj,
                                 frmsoftwaremain.mnuupdateProj, frmsoftwaremain.mnucloseProj}) {
            text += (text.empty() ? "" : " ") + std::string(item.enabled ? "on" : "off");
        }
        return text;
    }

  private:
    void record_outside() {
        auto& outside = platform::outside;
        outside.show_box = [this, show = outside.show_box](const Box& box) {
            record("box " + box.text);
            return show(box);
        };
        outside.choose_file = [this,
                               choose = outside.choose_file](const platform::FileDialogRequest& request) {
            record("file dialog");
            return choose(request);
        };
        outside.show_wait_pointer = [this](bool waiting) {
            record(waiting ? "wait pointer" : "normal pointer");
        };
    }

    void record_windows() {
        windows.show_splash = [this] { record("splash"); };
        windows.unload_splash = [this] { record("unload splash"); };
        windows.run_details_form = [this] {
            record("details form");
            if (in_details_form) {
                in_details_form();
            } else {
                mnuprojexit_Click();
            }
            EXPECT_FALSE(frmProject.visible) << "the form would still be shown";
        };
        windows.move_details_focus_on = [this] { record("focus on"); };
        windows.show_workspace = [this] { record("workspace"); };
        windows.unload_inlet_editor = [this] { record("unload inlet editor"); };
        windows.show_about_box = [this] { record("about box"); };
        windows.end_program = [this] {
            record("end program");
            throw ProgramEnded{};
        };
    }
};

}  // namespace gullymark::store
