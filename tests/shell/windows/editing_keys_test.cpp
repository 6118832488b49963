// The keys that edit a text, in each family of fields.

#include <gtest/gtest.h>
#include <QClipboard>
#include <QComboBox>

#include "shell/binding/input_filter.h"
#include "shell/new_road.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file

constexpr Qt::KeyboardModifiers no_modifier = Qt::NoModifier;
constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers keypad = Qt::KeypadModifier;

struct Stroke {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

struct EditRow {
    const char* what;
    std::vector<Stroke> strokes;
    const char* gives;  // of "1234" with the cursor at its end
    const char* clipboard = nullptr;
};

/// Letters stand for the digits in fields that take any text: the same rows serve both.
const std::vector<EditRow> edit_rows{
    {"Delete", {{Qt::Key_Home, no_modifier}, {Qt::Key_Delete, no_modifier}}, "234"},
    {"Delete on the keypad", {{Qt::Key_Home, keypad}, {Qt::Key_Delete, keypad}}, "234"},
    {"Delete of the marked text", {{Qt::Key_A, ctrl}, {Qt::Key_Delete, no_modifier}}, ""},
    {"Delete at the end", {{Qt::Key_End, no_modifier}, {Qt::Key_Delete, no_modifier}}, "1234"},
    {"Ctrl+Delete", {{Qt::Key_Home, no_modifier}, {Qt::Key_Delete, ctrl}}, ""},
    {"BackSpace", {{Qt::Key_Backspace, no_modifier}}, "123"},
    {"Ctrl+BackSpace", {{Qt::Key_Backspace, ctrl}}, ""},
    {"arrows",
     {{Qt::Key_Left, no_modifier},
      {Qt::Key_Left, no_modifier},
      {Qt::Key_Right, no_modifier},
      {Qt::Key_Backspace, no_modifier}},
     "124"},
    {"arrows of the keypad", {{Qt::Key_Left, keypad}, {Qt::Key_Delete, no_modifier}}, "123"},
    {"Shift and arrows", {{Qt::Key_Left, shift}, {Qt::Key_Left, shift}, {Qt::Key_Delete, no_modifier}}, "12"},
    {"Shift+Home", {{Qt::Key_Home, shift}, {Qt::Key_5, no_modifier}}, "5"},
    {"Home and a digit", {{Qt::Key_Home, no_modifier}, {Qt::Key_5, no_modifier}}, "51234"},
    {"a digit of the keypad", {{Qt::Key_5, keypad}}, "12345"},
    {"Ctrl+X", {{Qt::Key_A, ctrl}, {Qt::Key_X, ctrl}}, "", "1234"},
    {"Shift+Delete", {{Qt::Key_A, ctrl}, {Qt::Key_Delete, shift}}, "", "1234"},
    {"Ctrl+C", {{Qt::Key_A, ctrl}, {Qt::Key_C, ctrl}}, "1234", "1234"},
    {"Ctrl+Insert", {{Qt::Key_A, ctrl}, {Qt::Key_Insert, ctrl}}, "1234", "1234"},
    {"Ctrl+V", {{Qt::Key_V, ctrl}}, "123467"},
    {"Shift+Insert", {{Qt::Key_Insert, shift}}, "123467"},
    {"Ctrl+Z", {{Qt::Key_Home, no_modifier}, {Qt::Key_Delete, no_modifier}, {Qt::Key_Z, ctrl}}, "1234"},
    {"Ctrl+Z of a paste", {{Qt::Key_V, ctrl}, {Qt::Key_Z, ctrl}}, "1234"},
    {"Ctrl+Shift+Z", {{Qt::Key_Backspace, no_modifier}, {Qt::Key_Z, ctrl}, {Qt::Key_Z, ctrl | shift}}, "123"},
};

/// Strikes the keys of each row in a field that holds "1234".
void expect_every_key_works(QMainWindow& window, const char* name) {
    auto& field = *window.findChild<QWidget*>(name);
    QLineEdit& text = *line_of(field);
    for (const auto& row : edit_rows) {
        field.setFocus();
        settle();
        ASSERT_TRUE(field.hasFocus()) << name;
        text.selectAll();
        type(window, "1234");
        ASSERT_EQ(text.text(), "1234") << name;
        QGuiApplication::clipboard()->setText("67");
        for (const Stroke& stroke : row.strokes) {
            press(window, stroke.key, stroke.modifiers);
        }
        EXPECT_EQ(text.text(), row.gives) << row.what << " in " << name;
        if (row.clipboard != nullptr) {
            EXPECT_EQ(QGuiApplication::clipboard()->text(), row.clipboard) << row.what << " in " << name;
        }
    }
    text.selectAll();
    press(window, Qt::Key_Delete);
    EXPECT_EQ(text.text(), "") << name;
}

TEST(EditingKeys, WorkInEachFamilyOfFieldsOfTheForm) {
    NewRoad road;
    press(workspace(), Qt::Key_N, ctrl);
    type(workspace(), "I-1");
    struct Page {
        Qt::Key letter;
        std::vector<const char*> fields;
    };
    for (const auto& page :
         {Page{Qt::Key_L, {"storm_frequency", "overland_flow", "preinlet1"}},
          Page{Qt::Key_I, {"txtS", "cboLength", "cboClog"}},
          Page{Qt::Key_D, {"Station", "offset", "TopElevation", "curb_height", "flow_direction"}}}) {
        press(workspace(), page.letter, Qt::AltModifier);
        for (const char* field : page.fields) {
            expect_every_key_works(workspace(), field);
        }
    }
    for (const char* name : {"storm_frequency", "overland_flow", "preinlet1", "txtS", "cboLength"}) {
        line_of(*workspace().findChild<QWidget*>(name))->clear();
    }
    road.leave();
}

TEST(EditingKeys, WorkInTheProjectsDetails) {
    RunningProgram program;
    program.robot.answers.push_back(QMessageBox::Ok);
    program.robot.answers.push_back(QMessageBox::Yes);
    program.create_project("road", [](QWidget& form) {
        activate(form);
        for (const char* name : {"project_id", "project_name", "description", "county", "state"}) {
            expect_every_key_works(dynamic_cast<QMainWindow&>(form), name);
        }
        press(form, Qt::Key_Q, ctrl);
    });
}

}  // namespace
}  // namespace gullymark::shell
