#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QTableView>

#include "shell/new_road.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using testing::HasSubstr;

std::string clipboard() {
    return QGuiApplication::clipboard()->text().toStdString();
}

/// The right mouse button over a widget, whose middle may be a disabled one.
QMenu* menu_over(QWidget& window, QWidget& widget) {
    const QPoint at = widget.mapTo(&window, widget.rect().center());
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, Qt::NoModifier, at);
    QContextMenuEvent wish(QContextMenuEvent::Mouse, at, window.mapToGlobal(at));
    QCoreApplication::sendEvent(window.windowHandle(), &wish);
    settle();
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// Chooses "Copy" of a menu by its letter.
void choose_copy(QMenu* menu) {
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->objectName(), "fixed_copy_menu");
    press(*menu, Qt::Key_C);
}

TEST(CopyTexts, TheMenuOfADisabledFieldOrItsLabelCopiesItsText) {
    NewRoad road;
    save_a_curb_inlet();
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    EXPECT_FALSE(line("txtSpread").isEnabled());
    choose_copy(menu_over(workspace(), line("txtSpread")));
    EXPECT_EQ(clipboard(), "8.813");
    for (auto* label : workspace().findChildren<QLabel*>()) {
        if (label->buddy() == &line("txtQi")) {
            choose_copy(menu_over(workspace(), *label));
        }
    }
    EXPECT_EQ(clipboard(), "1.198");
    road.leave();
}

TEST(CopyTexts, APageIsCopiedAsATableWithMeaningsAndUnits) {
    NewRoad road;
    save_a_curb_inlet();
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    press(workspace(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(clipboard(), HasSubstr("Spread of water at the opening\t8.813\tft\n"));
    press(workspace(), Qt::Key_L, Qt::AltModifier);
    press(workspace(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(clipboard(), HasSubstr("\t2.500\tcfs\n"));
    EXPECT_THAT(clipboard(), testing::Not(HasSubstr("ight side"))) << "the right side is hidden on grade";
    road.leave();
}

TEST(CopyTexts, ARowOfTheGridIsCopied) {
    NewRoad road;
    save_a_curb_inlet();
    workspace().findChild<QTableView*>("flexgrid")->setFocus();
    press(workspace(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "I-1\t10+50\t");
    road.leave();
}

TEST(CopyTexts, TheRecordViewCopiesItsPagesToo) {
    NewRoad road;
    save_a_curb_inlet();
    press(workspace(), Qt::Key_L, Qt::ControlModifier);
    auto& listing = RunningProgram::window("frminletflex");
    activate(listing);
    press(listing, Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(clipboard(), HasSubstr("I-1\t10+50\t\tCurb Inlet\tCONTINUOUS GRADE\t"));
    press(listing, Qt::Key_Return);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "frmviewinlet") {
            activate(*window);
            press(*window, Qt::Key_R, Qt::AltModifier);
            press(*window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
            EXPECT_THAT(clipboard(), HasSubstr("Spread of water at the opening\t8.813\tft\n"));
            window->close();
        }
    }
    settle();
    listing.close();
    road.leave();
}

}  // namespace
}  // namespace gullymark::shell
