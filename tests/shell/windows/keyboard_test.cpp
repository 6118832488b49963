// The program by keyboard alone: the way of the Tab key, and keys that mean one thing each.

#include <map>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QComboBox>
#include <QTabBar>

#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "shell/new_road.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using editor::FieldId;
using editor::Kind;
using testing::Contains;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr int results_page = 3;
constexpr auto page_keys = std::to_array({Qt::Key_D, Qt::Key_L, Qt::Key_I, Qt::Key_R});

/// The widgets that Tab goes through from the tabs of the pages on, until it is back.
std::vector<QWidget*> walk(Qt::Key key = Qt::Key_Tab) {
    QWidget* tabs = workspace().findChild<QTabWidget*>("SSTab1")->tabBar();
    tabs->setFocus();
    settle();
    std::vector<QWidget*> way;
    for (int step = 0; step < 200; ++step) {
        press(workspace(), key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget* now = workspace().focusWidget();
        if (now == tabs) {
            break;
        }
        way.push_back(now);
    }
    return way;
}

std::vector<std::string> names(const std::vector<QWidget*>& widgets) {
    std::vector<std::string> texts;
    for (const QWidget* widget : widgets) {
        texts.push_back(widget->objectName().toStdString());
    }
    return texts;
}

/// The fields of the page in front that take the focus, in the order of their list.
std::vector<std::string> usable_fields() {
    std::vector<std::string> fields;
    const auto& screen = editor::frminletMDIC.screen;
    for (const FieldId id : editor::all_fields) {
        const Kind kind = editor::screen_field(id).kind;
        const bool takes_focus =
            kind == Kind::text || kind == Kind::list || kind == Kind::check_box || kind == Kind::command;
        if (takes_focus && editor::screen_field(id).tab == page() && screen.usable(id)) {
            fields.emplace_back(editor::field_name(id));
        }
    }
    if (page() == results_page) {
        fields.emplace_back("fixed_worked_calculation");  // the command above the results
    }
    return fields;
}

QRect on_window(const QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

/// A new inlet of the kind that stands there in the two lists, picked with the arrow keys.
void add_inlet_of_kind(int type_steps, int location_steps) {
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-1");
    for (const auto& [list, steps] :
         {std::pair("inlet_type", type_steps), {"inlet_location", location_steps}}) {
        workspace().findChild<QWidget*>(list)->setFocus();
        for (int i = 0; i < steps; ++i) {
            press(workspace(), Qt::Key_Down);
        }
    }
}

struct KindOfInlet {
    int type;
    int location;
};

struct TabOrder : testing::TestWithParam<KindOfInlet> {};

TEST_P(TabOrder, GoesThroughEveryUsableFieldOfAPageFromTopLeftToBottomRight) {
    NewRoad road;
    add_inlet_of_kind(GetParam().type, GetParam().location);
    for (const Qt::Key key : page_keys) {
        press(workspace(), key, Qt::AltModifier);
        const auto way = walk();
        EXPECT_THAT(names(way), ElementsAreArray(usable_fields())) << "page " << page();
        for (std::size_t i = 1; i < way.size(); ++i) {
            const QRect before = on_window(*way[i - 1]);
            const QRect now = on_window(*way[i]);
            EXPECT_TRUE(now.top() > before.top() || now.left() > before.right())
                << names(way)[i] << " stands before " << names(way)[i - 1];
        }
        auto back = walk(Qt::Key_Backtab);
        EXPECT_EQ(std::vector(back.rbegin(), back.rend()), way) << "the way back of page " << page();
    }
    road.leave();
}

INSTANTIATE_TEST_SUITE_P(Kinds, TabOrder,
                         testing::Values(KindOfInlet{0, 0}, KindOfInlet{2, 1}, KindOfInlet{4, 0},
                                         KindOfInlet{1, 1}));

/// The field in which the focus is.
std::string focus() {
    const QWidget* now = workspace().focusWidget();
    return now == nullptr ? "" : now->objectName().toStdString();
}

void begin_inlet(const char* number) {
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    activate(workspace());
    type(workspace(), number);
}

TEST(Keyboard, TheFirstVisitOfAPageBeginsInItsFirstFieldAndALaterOneWhereTheUserWas) {
    NewRoad road;
    for (const char* number : {"I-1", "I-2"}) {
        begin_inlet(number);
        EXPECT_EQ(focus(), "Inlet_Number");
        press(workspace(), Qt::Key_L, Qt::AltModifier);
        EXPECT_EQ(focus(), "storm_frequency") << number;
        press(workspace(), Qt::Key_Tab);
        const std::string left_in = focus();
        EXPECT_NE(left_in, "storm_frequency");
        press(workspace(), Qt::Key_PageDown, Qt::ControlModifier);
        EXPECT_EQ(focus(), "txtS") << number;
        press(workspace(), Qt::Key_L, Qt::AltModifier);
        EXPECT_EQ(focus(), left_in) << number;
        road.robot.answers.push_back(QMessageBox::Yes);
        press(workspace(), Qt::Key_Q, Qt::ControlModifier);
        activate(workspace());
    }
    road.leave();
}

void click_on_tab(int tab) {
    QTabBar* tabs = workspace().findChild<QTabWidget*>("SSTab1")->tabBar();
    click(*tabs, tabs->tabRect(tab).center());
}

TEST(Keyboard, AFirstVisitByAClickOnTheTabBeginsInTheFirstFieldTooAndArrowKeysStayOnTheTabs) {
    NewRoad road;
    begin_inlet("I-1");
    click_on_tab(1);
    EXPECT_EQ(focus(), "storm_frequency");
    QTabBar* tabs = workspace().findChild<QTabWidget*>("SSTab1")->tabBar();
    tabs->setFocus();
    settle();
    press(workspace(), Qt::Key_Right);
    EXPECT_EQ(page(), 2);
    EXPECT_TRUE(tabs->hasFocus());
    road.leave();
}

TEST(Keyboard, EnterAnswersTheCopyWithYesAndQuestionsThatTakeSomethingAwayWithNo) {
    NewRoad road;
    save_a_curb_inlet();
    road.robot.boxes.clear();
    road.robot.strikes_enter = true;
    choose(workspace(), "mnufile", "mnuflexcopyinlet");
    activate(workspace());
    EXPECT_EQ(mode(), "ADD");
    type(workspace(), "I-2");
    press(workspace(), Qt::Key_Q, Qt::ControlModifier);
    activate(workspace());
    EXPECT_EQ(mode(), "ADD") << "nothing typed is lost by Enter";
    road.robot.strikes_enter = false;
    road.robot.answers.push_back(QMessageBox::Yes);
    press(workspace(), Qt::Key_Q, Qt::ControlModifier);
    activate(workspace());
    road.robot.strikes_enter = true;
    choose(workspace(), "mnufile", "mnuflexdeleteinlet");
    activate(workspace());
    EXPECT_EQ(saved(road, "INLET_NUMBER"), "I-1");
    EXPECT_EQ(road.robot.boxes.size(), 4U);
    road.leave();
}

TEST(Keyboard, InViewTabGoesBetweenThePagesAndTheGrid) {
    NewRoad road;
    EXPECT_EQ(mode(), "VIEW");
    EXPECT_THAT(names(walk()), Contains("flexgrid"));
    road.leave();
}

/// The letters that stand after a & in `texts`.
void expect_each_once(const std::string& where, const QStringList& texts) {
    std::set<QString> seen;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        EXPECT_TRUE(key.isEmpty() || seen.insert(key).second)
            << where << ": " << key.toStdString() << " of \"" << text.toStdString() << '"';
    }
}

/// Those that stand in this window, and not in one that it owns.
template <class Thing>
std::vector<const Thing*> own(const QWidget& window) {
    std::vector<const Thing*> things;
    for (const auto* thing : window.findChildren<Thing*>()) {
        const auto* parent = qobject_cast<const QWidget*>(thing->parent());
        while (qobject_cast<const QMenu*>(parent) != nullptr) {
            parent = parent->parentWidget();
        }
        if (parent != nullptr && parent->window() == &window) {
            things.push_back(thing);
        }
    }
    return things;
}

/// What Alt and a letter reach in a window: its menus, the tabs of its pages, labels and buttons.
QStringList texts_with_letters(const QWidget& window) {
    QStringList texts;
    for (const auto* bar : own<QMenuBar>(window)) {
        for (const QAction* action : bar->actions()) {
            texts << action->text();
        }
    }
    for (const auto* tabs : own<QTabBar>(window)) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts << tabs->tabText(i);
        }
    }
    for (const auto* label : own<QLabel>(window)) {
        texts << (label->buddy() != nullptr ? label->text() : QString());
    }
    for (const auto* button : own<QAbstractButton>(window)) {
        texts << (button->inherits("QToolButton") ? QString() : button->text());
    }
    return texts;
}

TEST(Keyboard, ALetterAndAShortcutMeanOneThingInEachWindow) {
    NewRoad road;
    int windows = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isWindow() || window->inherits("QMenu")) {
            continue;
        }
        const std::string name = window->objectName().toStdString();
        expect_each_once(name, texts_with_letters(*window));
        for (const auto* menu : own<QMenu>(*window)) {
            QStringList texts;
            for (const QAction* action : menu->actions()) {
                texts << action->text();
            }
            expect_each_once(name + ", " + menu->objectName().toStdString(), texts);
        }
        std::map<QString, const QAction*> keys;
        for (const auto* action : own<QAction>(*window)) {
            const QString key = action->shortcut().toString();
            EXPECT_TRUE(key.isEmpty() || keys.emplace(key, action).second)
                << name << ": " << key.toStdString() << " of " << action->objectName().toStdString();
        }
        ++windows;
    }
    EXPECT_GE(windows, 6);
    road.leave();
}

TEST(Keyboard, EveryMenuOpensByItsLetterAndEveryCommandHasALetterOrAKeyOrStandsBelowOne) {
    NewRoad road;
    for (const char* name : {"frmsoftwaremain", "frmProject", "MDIInlet", "frminletflex"}) {
        for (const QAction* action : RunningProgram::window(name).menuBar()->actions()) {
            EXPECT_FALSE(QKeySequence::mnemonic(action->text()).isEmpty()) << action->text().toStdString();
            EXPECT_THAT(action->menu()->actions(), testing::Not(IsEmpty()));
        }
    }
    road.leave();
}

}  // namespace
}  // namespace gullymark::shell
