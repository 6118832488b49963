#include "shell/binding/binder.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/desktop.h"
#include "small_form.h"

namespace gullymark::shell {
namespace {

using testing_support::activate;
using testing_support::click;
using testing_support::press;
using testing_support::settle;
using testing_support::SmallForm;
using testing_support::type;

TEST(Binder, NamesEveryItemWithoutAWidgetAndEveryWidgetWithoutAnItem) {
    SmallForm form;
    auto items = form.items();
    items.front().name = "Number";
    const platform::Field lonely;
    items.push_back({.name = "lonely", .field = &lonely});
    try {
        form.bind(std::move(items));
        FAIL() << "nothing was found";
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(),
                     "small_form:\nwidget without an item: number\nitem without a widget: Number"
                     "\nitem without a widget: lonely");
    }
}

TEST(Binder, LeavesOutWhatIsDrawnAndNeverChanges) {
    SmallForm form;
    auto* drawn = new QLabel(&form.window);
    drawn->setObjectName("fixed_title");
    EXPECT_NO_THROW(form.bind(form.items()));
}

TEST(Binder, ShowsTheLogicsTextsEntriesAndCaptions) {
    SmallForm form;
    form.open();
    EXPECT_EQ(form.number_line->text(), "1");
    EXPECT_EQ(form.kind_list->currentText(), "Curb");
    EXPECT_EQ(form.kind_list->count(), 2);
    form.kind.entries = {"Curb", "Grate", "Slotted"};
    form.kind.text = "Slo";
    form.number.text = "2";
    show_all();
    EXPECT_EQ(form.number_line->text(), "2");
    EXPECT_EQ(form.kind_list->currentText(), "Slo");
    EXPECT_EQ(form.kind_list->itemText(2), "Slotted");
}

TEST(Binder, ShowsOneCaptionOnEveryLabelOfAGroup) {
    SmallForm form;
    form.open();
    form.unit.caption = "m";
    show_all();
    EXPECT_EQ(form.unit_label->text(), "m");
    EXPECT_EQ(form.other_unit_label->text(), "m");
}

TEST(Binder, ShowsWhatIsDisabledLockedHiddenOrGray) {
    SmallForm form;
    form.open();
    form.number.locked = true;
    form.number.color = platform::Color::gray;
    form.kind.enabled = false;
    form.unit.visible = false;
    show_all();
    EXPECT_TRUE(form.number_line->isReadOnly());
    EXPECT_TRUE(form.number_line->isEnabled());
    EXPECT_EQ(form.number_line->palette().color(QPalette::Base), QPalette().color(QPalette::Button));
    EXPECT_FALSE(form.kind_list->isEnabled());
    EXPECT_FALSE(form.unit_label->isVisible());
    form.number = {.text = "1"};
    form.unit.visible = true;
    show_all();
    EXPECT_FALSE(form.number_line->isReadOnly());
    EXPECT_EQ(form.number_line->palette().color(QPalette::Base), QPalette().color(QPalette::Base));
    EXPECT_TRUE(form.unit_label->isVisible());
}

TEST(Binder, ShowsATextThatIsNoneOfTheEntriesOfAPlainList) {
    SmallForm form;
    form.kind_list->setEditable(false);
    form.open();
    form.kind.text = "METRIC";
    show_all();
    EXPECT_EQ(form.kind_list->currentIndex(), -1);
    EXPECT_EQ(form.kind_list->placeholderText(), "METRIC");
}

TEST(Binder, TellsWhatIsTypedUpToTheLimit) {
    SmallForm form;
    form.open();
    click(*form.number_line);
    form.number_line->selectAll();
    type(form.window, "1234567890");
    EXPECT_EQ(form.number.text, "12345678");
}

TEST(Binder, KeepsAFieldsUndo) {
    SmallForm form;
    form.open();
    click(*form.number_line);
    press(form.window, Qt::Key_End);
    type(form.window, "23");
    press(form.window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.number.text, "1");
}

TEST(Binder, TakesWhatIsTypedIntoAListAsItStands) {
    SmallForm form;
    form.open();
    click(*form.kind_list->lineEdit());
    form.kind_list->lineEdit()->selectAll();
    type(form.window, "cu");
    EXPECT_EQ(form.kind.text, "cu");
    EXPECT_EQ(form.kind_list->currentText(), "cu");
    EXPECT_EQ(form.kind_list->count(), 2);
}

TEST(Binder, TellsAPickedEntry) {
    SmallForm form;
    form.open();
    click(*form.kind_list->lineEdit());
    press(form.window, Qt::Key_Down);
    EXPECT_EQ(form.kind.text, "Grate");
}

TEST(Binder, TellsThatAListIsAboutToDropDown) {
    SmallForm form;
    auto items = form.items();
    items[1].opened = [&form] {
        form.heard.emplace_back("opened");
        form.kind.entries = {"New"};
        form.kind.text = "New";
    };
    form.bind(std::move(items));
    activate(form.window);
    form.heard.clear();
    form.kind_list->showPopup();
    settle();
    EXPECT_THAT(form.heard, testing::ElementsAre("opened"));
    EXPECT_EQ(form.kind_list->count(), 1);
    form.kind_list->hidePopup();
}

TEST(Binder, TurnsACheckBoxAsTheLogicSays) {
    SmallForm form;
    form.open();
    click(*form.override_check, {8, 20});
    EXPECT_TRUE(form.override_box.checked);
    form.override_box.checked = false;
    show_all();
    EXPECT_FALSE(form.override_check->isChecked());
}

TEST(Binder, TurnsPagesBothWays) {
    SmallForm form;
    form.open();
    form.click_second_tab();
    EXPECT_EQ(form.page, 1);
    form.heard.clear();
    form.page = 0;
    show_all();
    EXPECT_EQ(form.tabs->currentIndex(), 0);
    EXPECT_TRUE(form.heard.empty()) << "the logic's own turn is no click of the user";
}

}  // namespace
}  // namespace gullymark::shell
