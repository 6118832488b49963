#include "shell/binding/field_focus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QWheelEvent>

#include "platform/outside.h"
#include "shell/binding/binder.h"
#include "shell/desktop.h"
#include "small_form.h"

namespace gullymark::shell {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::activate;
using testing_support::click;
using testing_support::press;
using testing_support::Robot;
using testing_support::settle;
using testing_support::SmallForm;
using testing_support::type;

/// A form in whose first field the user is.
struct EnteredForm : SmallForm {
    EnteredForm() {
        open();
        click(*number_line);
        heard.clear();
    }
};

TEST(Leaving, RunsOnceForEachWayOut) {
    EnteredForm form;
    press(form.window, Qt::Key_Tab);
    EXPECT_THAT(form.heard, ElementsAre("leave number", "enter kind"));
    press(form.window, Qt::Key_Backtab, Qt::ShiftModifier);
    click(*form.kind_list->lineEdit());
    EXPECT_THAT(form.heard, ElementsAre("leave number", "enter kind", "leave kind", "enter number",
                                        "leave number", "enter kind"));
}

TEST(Leaving, IsNoLeavingWithinTheSameFieldOrAtAPlaceThatTakesNoFocus) {
    EnteredForm form;
    click(*form.number_line, {5, 5});
    click(*form.unit_label);
    EXPECT_THAT(form.heard, IsEmpty());
}

TEST(Leaving, RefusedSwallowsTheTab) {
    EnteredForm form;
    form.stays = true;
    press(form.window, Qt::Key_Tab);
    EXPECT_THAT(form.heard, ElementsAre("leave number"));
    EXPECT_TRUE(form.number_line->hasFocus());
}

TEST(Leaving, RefusedSwallowsTheClickOnAButton) {
    EnteredForm form;
    form.stays = true;
    click(*form.solve_button);
    EXPECT_THAT(form.heard, ElementsAre("leave number"));
    EXPECT_TRUE(form.number_line->hasFocus());
    form.stays = false;
    click(*form.solve_button);
    EXPECT_THAT(form.heard, ElementsAre("leave number", "leave number", "solve"));
}

TEST(Leaving, RefusedSwallowsTheClickOnATabAndTheKeysThatTurnPages) {
    EnteredForm form;
    form.stays = true;
    form.click_second_tab();
    press(form.window, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_THAT(form.heard, ElementsAre("leave number", "leave number"));
    EXPECT_EQ(form.tabs->currentIndex(), 0);
}

TEST(Leaving, DoesNotRunWhenTheWindowLosesTheUser) {
    EnteredForm form;
    QWidget other;
    activate(other);
    EXPECT_THAT(form.heard, IsEmpty());
    activate(form.window);
    EXPECT_THAT(form.heard, IsEmpty());
    EXPECT_TRUE(form.number_line->hasFocus());
}

TEST(Leaving, IsRefusedWhenTheLogicWantsTheFocusBack) {
    SmallForm form;
    auto items = form.items();
    items[0].leave = [&form] {
        form.number.text = "again";
        form.binder->focus().give_to("number");
        form.binder->focus().select_all("number");
        return true;
    };
    form.bind(std::move(items));
    activate(form.window);
    click(*form.number_line);
    form.heard.clear();
    press(form.window, Qt::Key_Tab);
    EXPECT_THAT(form.heard, IsEmpty());
    EXPECT_TRUE(form.number_line->hasFocus());
    EXPECT_EQ(form.number_line->selectedText(), "again");
}

TEST(Leaving, IsNotHeldUpByASelection) {
    SmallForm form;
    auto items = form.items();
    items[0].leave = [&form] {
        form.binder->focus().select_all("number");
        return true;
    };
    form.bind(std::move(items));
    activate(form.window);
    click(*form.number_line);
    press(form.window, Qt::Key_Tab);
    EXPECT_FALSE(form.number_line->hasFocus());
}

/// A form whose first field shows a box when it is left.
struct TellingForm : SmallForm {
    Robot robot;

    TellingForm() {
        attach_to_desktop();
        auto all = items();
        all[0].leave = [this] {
            platform::tell("Please look");
            heard.emplace_back("leave number");
            return !stays;
        };
        bind(std::move(all));
        activate(window);
        click(*number_line);
        heard.clear();
    }
    ~TellingForm() { platform::outside = {}; }
};

TEST(Leaving, WithABoxLetsTheClickThroughAndTheNextOneToo) {
    TellingForm form;
    click(*form.solve_button);
    EXPECT_THAT(form.heard, ElementsAre("leave number", "solve"));
    EXPECT_FALSE(form.solve_button->isDown());
    activate(form.window);
    click(*form.kind_list->lineEdit());
    EXPECT_TRUE(form.kind_list->hasFocus());
    EXPECT_THAT(form.heard, ElementsAre("leave number", "solve", "enter kind"));
}

TEST(Leaving, WithABoxAndRefusedKeepsTheFocusForTheNextClick) {
    TellingForm form;
    form.stays = true;
    click(*form.solve_button);
    EXPECT_THAT(form.heard, ElementsAre("leave number"));
    activate(form.window);
    EXPECT_TRUE(form.number_line->hasFocus());
    form.stays = false;
    click(*form.solve_button);
    EXPECT_THAT(form.heard, ElementsAre("leave number", "leave number", "solve"));
    EXPECT_EQ(form.robot.boxes.size(), 2U);
}

TEST(Entering, SelectsAllEvenWhenTheMouseBroughtTheFocus) {
    SmallForm form;
    auto items = form.items();
    items[0].entered = [&form] { form.binder->focus().select_all("number"); };
    form.number.text = "12.5";
    form.bind(std::move(items));
    activate(form.window);
    click(*form.kind_list->lineEdit());
    click(*form.number_line);
    EXPECT_EQ(form.number_line->selectedText(), "12.5");
    press(form.window, Qt::Key_Tab);
    press(form.window, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(form.number_line->selectedText(), "12.5");
}

TEST(Entering, ComesAgainAfterACommandLeftTheField) {
    SmallForm form;
    bool in_number = false;
    auto items = form.items();
    items[0].entered = [&] {
        in_number = true;
        form.heard.emplace_back("enter number");
    };
    items[0].is_entered = [&] { return in_number; };
    form.bind(std::move(items));
    activate(form.window);
    click(*form.number_line);
    form.heard.clear();
    handle([&] { in_number = false; });
    settle();
    EXPECT_THAT(form.heard, ElementsAre("enter number"));
}

TEST(Leaving, DoesNotRunForAFieldThatTheLogicDisables) {
    EnteredForm form;
    handle([&] { form.number.enabled = false; });
    settle();
    EXPECT_THAT(form.heard, ElementsAre("enter kind"));
}

TEST(MovingOn, IsATab) {
    EnteredForm form;
    handle([&] { form.binder->focus().move_on(); });
    EXPECT_THAT(form.heard, ElementsAre("leave number", "enter kind"));
    EXPECT_TRUE(form.kind_list->hasFocus());
}

void turn_wheel_over(QWidget& widget) {
    const QPointF at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
    settle();
}

TEST(Wheel, ChangesAListOnlyWhileTheUserIsInIt) {
    EnteredForm form;
    turn_wheel_over(*form.kind_list);
    EXPECT_EQ(form.kind.text, "Curb");
    EXPECT_TRUE(form.number_line->hasFocus());
    click(*form.kind_list->lineEdit());
    turn_wheel_over(*form.kind_list);
    EXPECT_EQ(form.kind.text, "Grate");
}

TEST(Wheel, DoesNotTurnPages) {
    EnteredForm form;
    turn_wheel_over(*form.tabs->tabBar());
    EXPECT_EQ(form.page, 0);
}

}  // namespace
}  // namespace gullymark::shell
