// On a screen that is smaller than the windows would like: run for several sizes of screen (see CMakeLists.txt).

#include "shell/binding/small_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QHeaderView>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QToolBar>

#include "shell/new_road.h"
#include "shell/painted_texts.h"
#include "shell/window_tour.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file

TEST(SmallScreen, EveryWindowOpensWithinTheScreenAndShowsItsButtonsAndBars) {
    tour_windows([](const std::string& name, QWidget& window) {
        const QSize screen = window.screen()->availableSize();
        constexpr int title = 30;
        EXPECT_LE(window.width(), screen.width()) << name;
        EXPECT_LE(window.height() + (name == "splash" ? 0 : title), screen.height()) << name;
        for (const auto* part : window.findChildren<QWidget*>()) {
            const bool must_show = part->inherits("QPushButton") || part->inherits("QStatusBar") ||
                                   part->inherits("QMenuBar") || part->inherits("QTabBar");
            const bool in_page = part->objectName() == "inletstd_help";
            if (part->isVisible() && part->window() == &window && must_show && !in_page) {
                const QRect place(part->mapTo(&window, QPoint()), part->size());
                EXPECT_TRUE(window.rect().contains(place))
                    << name << ": " << part->objectName().toStdString();
            }
        }
    });
}

TEST(SmallScreen, From1024PixelsOnNoPageScrollsSideways) {
    if (QGuiApplication::primaryScreen()->availableSize().width() < 1024) {
        GTEST_SKIP() << "a narrower screen";
    }
    int pages = 0;
    tour_windows([&pages](const std::string& name, QWidget& window) {
        for (auto* area : window.findChildren<QScrollArea*>()) {
            if (area->isVisible() && area->objectName() == "fixed_scroll") {
                EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << name;
                ++pages;
            }
        }
    });
    EXPECT_GE(pages, 16);
}

TEST(SmallScreen, TheGridKeepsItsThreeColumnsReadable) {
    NewRoad road;
    save_a_curb_inlet();
    const auto& grid = *workspace().findChild<QTableView*>("flexgrid");
    const int text = grid.fontMetrics().horizontalAdvance("10+50.0");
    for (int column = 0; column < 3; ++column) {
        EXPECT_GE(grid.columnWidth(column), text) << column;
        EXPECT_GE(grid.columnWidth(column), grid.horizontalHeader()->sectionSizeHint(column)) << column;
    }
    EXPECT_TRUE(workspace().rect().contains(QRect(grid.mapTo(&workspace(), QPoint()), grid.size())));
    road.leave();
}

TEST(SmallScreen, TheWorkspaceCanBeMadeSmall) {
    NewRoad road;
    workspace().resize(640, 400);
    settle();
    EXPECT_LE(workspace().width(), 640);
    EXPECT_LE(workspace().height(), 400);
    road.leave();
}

/// The part of a widget that the user sees.
QRect seen(QWidget& widget) {
    return widget.visibleRegion().boundingRect();
}

TEST(SmallScreen, AFieldThatGetsTheFocusScrollsIntoSight) {
    NewRoad road;
    workspace().resize(640, 400);
    press(workspace(), Qt::Key_N, Qt::ControlModifier);
    type(workspace(), "I-1");
    int scrolled = 0;
    for (const Qt::Key page : {Qt::Key_D, Qt::Key_L, Qt::Key_I}) {
        press(workspace(), page, Qt::AltModifier);
        for (int step = 0; step < 16; ++step) {
            press(workspace(), Qt::Key_Tab);
            QWidget& field = *workspace().focusWidget();
            EXPECT_EQ(seen(field), field.rect()) << field.objectName().toStdString();
            const auto* area = workspace().findChild<QTabWidget*>("SSTab1")->currentWidget();
            scrolled += qobject_cast<const QScrollArea*>(area)->verticalScrollBar()->value() > 0 ? 1 : 0;
        }
    }
    EXPECT_GT(scrolled, 0);
    road.leave();
}

TEST(SmallScreen, APageThatDoesNotFitScrollsByKeyWhereNoFieldTakesTheFocus) {
    NewRoad road;
    save_a_curb_inlet();
    workspace().resize(640, 400);
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    auto* tabs = workspace().findChild<QTabWidget*>("SSTab1");
    tabs->tabBar()->setFocus();
    const auto* area = qobject_cast<QScrollArea*>(tabs->currentWidget());
    press(workspace(), Qt::Key_PageDown);
    EXPECT_GT(area->verticalScrollBar()->value(), 0);
    press(workspace(), Qt::Key_PageUp);
    EXPECT_EQ(area->verticalScrollBar()->value(), 0);
    press(workspace(), Qt::Key_Down);
    EXPECT_GT(area->verticalScrollBar()->value(), 0);
    press(workspace(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_GT(area->horizontalScrollBar()->value(), 0);
    EXPECT_EQ(page(), 3);
    road.leave();
}

/// 1280x720 shows all of both pages; a screen of 1024x768 shows their whole width.
TEST(SmallScreen, ThePagesWithTheSectionAreSeenWhole) {
    NewRoad road;
    save_a_curb_inlet();
    const QSize screen = workspace().screen()->size();
    for (const Qt::Key key : {Qt::Key_I, Qt::Key_R}) {
        press(workspace(), key, Qt::AltModifier);
        settle();
        const auto* area =
            qobject_cast<const QScrollArea*>(workspace().findChild<QTabWidget*>("SSTab1")->currentWidget());
        if (screen.width() >= 1280 && screen.height() >= 720) {
            EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << page();
        }
        if (screen.width() >= 1024) {
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << page();
        }
        const auto pictures = area->widget()->findChildren<QWidget*>(QRegularExpression("picture$"));
        ASSERT_EQ(pictures.size(), 1);
        EXPECT_GE(pictures[0]->width(), 260);
        EXPECT_GE(pictures[0]->height(), 160);
    }
    road.leave();
}

TEST(SmallScreen, ALongNameIsNoReasonForAWideWindow) {
    NewRoad road;
    store::session.projectName = std::string(50, 'W');
    press(workspace(), Qt::Key_F5);
    EXPECT_LE(workspace().minimumSizeHint().width(), 640);
    road.leave();
}

}  // namespace
}  // namespace gullymark::shell
