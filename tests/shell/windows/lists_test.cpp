// The grid of the workspace and the listing under mouse and keyboard.

#include <gtest/gtest.h>
#include <QContextMenuEvent>
#include <QProxyStyle>
#include <QTableView>
#include <QToolBar>

#include "shell/binding/rows_model.h"
#include "shell/new_road.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file

QMainWindow& listing() {
    return RunningProgram::window("frminletflex");
}

QTableView& rows_of(QMainWindow& window) {
    return *window.findChild<QTableView*>();
}

QPoint middle_of_row(const QTableView& rows, int row) {
    return rows.visualRect(rows.model()->index(row - 1, 0)).center();
}

void open_listing() {
    press(workspace(), Qt::Key_L, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&listing()));
}

/// A desktop that takes one click for a double click.
class OneClickStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        return hint == SH_ItemView_ActivateItemOnSingleClick
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

TEST(Lists, AClickOrAKeyOnTheMarkedRowOfTheGridBringsTheFirstPageBack) {
    NewRoad road;
    save_a_curb_inlet();
    QTableView& grid = rows_of(workspace());
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(page(), 3);
    click(*grid.viewport(), middle_of_row(grid, 1));
    EXPECT_EQ(page(), 0);
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    grid.setFocus();
    press(workspace(), Qt::Key_Home);
    EXPECT_EQ(page(), 0);
    road.leave();
}

TEST(Lists, KeysThatTurnThePagesAreNoneOfTheGrid) {
    NewRoad road;
    save_a_curb_inlet();
    rows_of(workspace()).setFocus();
    press(workspace(), Qt::Key_PageDown, Qt::ControlModifier);
    press(workspace(), Qt::Key_Control);
    EXPECT_EQ(page(), 1);
    road.leave();
}

TEST(Lists, OneClickInTheListingOpensNoRecordWhateverTheDesktop) {
    NewRoad road;
    save_a_curb_inlet();
    open_listing();
    QTableView& rows = rows_of(listing());
    OneClickStyle style;
    QStyle* own = rows.style();
    rows.setStyle(&style);
    click(*rows.viewport(), middle_of_row(rows, 1));
    EXPECT_TRUE(listing().isVisible());
    rows.setStyle(own);
    rows.setFocus();
    press(listing(), Qt::Key_Return);
    EXPECT_FALSE(listing().isVisible());
    road.leave();
}

TEST(Lists, AskedForAgainTheListingComesToTheFront) {
    NewRoad road;
    save_a_curb_inlet();
    open_listing();
    activate(workspace());
    open_listing();
    EXPECT_EQ(QApplication::activeWindow(), &listing());
    road.leave();
}

TEST(Lists, NoMenuOfTheToolkitLetsAToolBarVanish) {
    NewRoad road;
    for (const char* window : {"MDIInlet", "frmsoftwaremain", "frmProject", "frminletflex"}) {
        EXPECT_EQ(RunningProgram::window(window).contextMenuPolicy(), Qt::NoContextMenu) << window;
    }
    auto& bar = *workspace().findChild<QToolBar*>("Toolbar1");
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, bar.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&bar, &event);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    road.leave();
}

TEST(Lists, ARowThatIsOutOfSightBecomesTheFirstOneShown) {
    QTableView rows;
    RowsModel model(&rows, {.headings = {"INLET"},
                            .count = [] { return 100; },
                            .cell = [](int row, std::size_t) { return std::to_string(row); }});
    set_up_rows(rows, model);
    model.renew();
    rows.resize(200, 200);
    rows.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&rows));
    mark_row(rows, 60);
    EXPECT_EQ(rows.rowAt(1), 59);
    mark_row(rows, 62);
    EXPECT_EQ(rows.rowAt(1), 59) << "one that is in sight stays where it is";
    mark_row(rows, 10);
    EXPECT_EQ(rows.rowAt(1), 9);
}

}  // namespace
}  // namespace gullymark::shell
