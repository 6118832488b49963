#include "shell/windows/standards_window.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>
#include <QLabel>
#include <QScrollBar>

#include "catalogue/standards.h"
#include "engine/inlet_record.h"
#include "shell/binding/turn.h"
#include "shell/robot.h"

namespace gullymark::shell {
namespace {

using catalogue::Table;
using engine::Column;
using engine::open_inlet;

/// An open window over an inlet whose columns are all null.
class Standards : public ::testing::Test {
  protected:
    Standards() { open_inlet = {}; }
    ~Standards() override { open_inlet = {}; }

    void open(std::string_view location, std::string_view type) {
        table = catalogue::table_for(location, type);
        ASSERT_NE(table, nullptr);
        open(*table);
    }
    void open(const Table& opened) {
        table = &opened;
        window = std::make_unique<StandardsWindow>(opened);
        list = window->findChild<StandardsList*>("gratetypelist");
        ASSERT_NE(list, nullptr);
        testing_support::activate(*window);
    }

    [[nodiscard]] QPushButton* command(std::string_view name) const {
        return window->findChild<QPushButton*>(QString::fromUtf8(name.data(), qsizetype(name.size())));
    }
    [[nodiscard]] QPoint middle_of(int row, int column) const {
        list->scrollToItem(list->item(row, column));
        return list->visualItemRect(list->item(row, column)).center();
    }
    void click(int row, int column = 0) const {
        testing_support::click(*list->viewport(), middle_of(row, column));
    }
    void double_click(int row) const {
        click(row);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, middle_of(row, 0));
        testing_support::settle();
    }
    void press(Qt::Key key) const { testing_support::press(*window, key); }
    void click_command(std::string_view name) const {
        ASSERT_NE(command(name), nullptr);
        testing_support::click(*command(name), command(name)->rect().center());
    }

    [[nodiscard]] int first_separator() const {
        int row = 0;
        while (!catalogue::is_separator(table->rows[std::size_t(row)])) {
            ++row;
        }
        return row;
    }
    [[nodiscard]] std::string selected() const { return row_text(*table, list->selected_row()); }

    const Table* table = nullptr;
    std::unique_ptr<StandardsWindow> window;
    StandardsList* list = nullptr;
};

TEST_F(Standards, EveryTableShowsItsTitleHeadingColumnsRowsAndCommands) {
    for (const Table& each : catalogue::tables()) {
        SCOPED_TRACE(each.name);
        open(each);
        EXPECT_EQ(window->windowTitle().toStdString(), each.title);
        const std::string heading = window->findChild<QLabel*>("heading")->text().toStdString();
        EXPECT_EQ(heading, std::string(each.heading[0]) +
                               (each.heading[1].empty() ? "" : '\n' + std::string(each.heading[1])));
        ASSERT_EQ(list->columnCount(), int(each.columns.size()));
        for (int column = 0; column < list->columnCount(); ++column) {
            const auto& told = each.columns[std::size_t(column)];
            const QString text = list->horizontalHeaderItem(column)->text();
            EXPECT_EQ(text.section('\n', 0, -2).replace('\n', ' ').toStdString(), told.heading);
            EXPECT_EQ(text.section('\n', -1).toStdString(), told.unit);
        }
        ASSERT_EQ(list->rowCount(), int(each.rows.size()));
        for (int row = 0; row < list->rowCount(); ++row) {
            for (int column = 0; column < list->columnCount(); ++column) {
                EXPECT_EQ(list->item(row, column)->text().toStdString(),
                          each.rows[std::size_t(row)].at(std::size_t(column)));
            }
        }
        ASSERT_NE(command(each.select_command), nullptr);
        EXPECT_EQ(command(each.select_command)->text(), "Select");
        ASSERT_NE(command("gtcancel"), nullptr);
        EXPECT_EQ(command("gtcancel")->text(), "Cancel");
        EXPECT_EQ(list->horizontalScrollBar()->maximum(), 0) << "every column is in sight";
        EXPECT_TRUE(list->hasFocus());
        EXPECT_EQ(selected(), "");
    }
}

TEST_F(Standards, SelectPicksTheRowThatWasClickedAndCloses) {
    open("SUMP", "Grate Inlet");
    click(2);
    click_command("gisselect");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_EQ(open_inlet.text(Column::INLET_SUBTYPE), "B(Curb/barrier)");
    EXPECT_EQ(open_inlet.text(Column::GRATEPERCLOG), "25");
    EXPECT_EQ(open_inlet.text(Column::GRATEAREA), "1.251");
}

TEST_F(Standards, ADoubleClickPicksItsRowAndCloses) {
    open("SUMP", "Grate Inlet in a Ditch");
    const int last = list->rowCount() - 1;
    double_click(last);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(open_inlet.text(Column::INLET_SUBTYPE), "Y-Weld");
    EXPECT_EQ(open_inlet.text(Column::GRATEPERCLOG), "50");
    EXPECT_EQ(open_inlet.text(Column::INLETLENGTH), "-");
}

TEST_F(Standards, ArrowKeysAndEnterPickARow) {
    open("CONTINUOUS GRADE", "Curb Inlet");
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), "S1 ONE WING\t0\t10.25\t10.25");
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), "S1 ONE WING\t10\t10.25\t9.23");
    press(Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(open_inlet.text(Column::INLET_SUBTYPE), "S1 ONE WING");
    EXPECT_EQ(open_inlet.text(Column::GRATEPERCLOG), "10");
}

TEST_F(Standards, ArrowKeysPassOverTheSeparators) {
    for (const Table& each : catalogue::tables()) {
        open(each);
        for (const auto& row : each.rows) {
            if (!catalogue::is_separator(row)) {
                press(Qt::Key_Down);
                EXPECT_EQ(selected(), row_text(each, row));
            }
        }
        for (auto row = each.rows.rbegin(); row != each.rows.rend(); ++row) {
            if (!catalogue::is_separator(*row)) {
                EXPECT_EQ(selected(), row_text(each, *row));
                press(Qt::Key_Up);
            }
        }
    }
}

TEST_F(Standards, TheEndKeysAndPagesStopAtRowsOfStandards) {
    open("SUMP", "Grate Inlet in a Ditch");
    press(Qt::Key_Home);
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_PageDown}) {
        press(key);
        EXPECT_NE(selected(), "");
    }
}

TEST_F(Standards, SelectWithNoRowSelectedClosesAndChangesNothing) {
    open("SUMP", "Curb Inlet");
    press(Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(open_inlet.changed());
}

TEST_F(Standards, SelectAfterAClickOnASeparatorClosesAndChangesNothing) {
    open("CONTINUOUS GRADE", "Grate Inlet");
    click(1);
    ASSERT_NE(selected(), "");
    click(first_separator());
    EXPECT_EQ(selected(), "");
    click_command("gigselect");
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(open_inlet.changed());
}

TEST_F(Standards, ADoubleClickOnASeparatorClosesAndChangesNothing) {
    open("SUMP", "Combination Curb and Grate Inlet");
    double_click(first_separator());
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(open_inlet.changed());
}

TEST_F(Standards, CancelLeavesTheInletAsItWas) {
    open("CONTINUOUS GRADE", "Combination Curb and Grate Inlet");
    click(3);
    click_command("gtcancel");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_FALSE(open_inlet.changed());
}

TEST_F(Standards, EscapeLeavesTheInletAsItWas) {
    open("CONTINUOUS GRADE", "Grate Inlet in a Ditch");
    click(0);
    press(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(open_inlet.changed());
}

TEST_F(Standards, TabGoesFromTheRowsToSelectAndToCancel) {
    open("SUMP", "Grate Inlet");
    press(Qt::Key_Tab);
    EXPECT_TRUE(command("gisselect")->hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(command("gtcancel")->hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(list->hasFocus());
}

TEST_F(Standards, ARowIsSelectedAsAWhole) {
    open("SUMP", "Grate Inlet");
    click(1, 5);
    EXPECT_EQ(list->selectedItems().size(), list->columnCount());
}

TEST_F(Standards, TheFormWaitsUntilTheWindowIsClosed) {
    const int rounds = modal_rounds();
    bool seen = false;
    QTimer::singleShot(0, [&] {
        QWidget* opened = QApplication::activeModalWidget();
        ASSERT_NE(opened, nullptr);
        seen = opened->objectName() == "frmCIG";
        testing_support::activate(*opened);
        testing_support::press(*opened, Qt::Key_Down);
        testing_support::press(*opened, Qt::Key_Return);
    });
    show_standards(*catalogue::table_for("CONTINUOUS GRADE", "Curb Inlet"));
    EXPECT_TRUE(seen);
    EXPECT_EQ(open_inlet.text(Column::INLET_SUBTYPE), "S1 ONE WING");
    EXPECT_EQ(modal_rounds(), rounds + 1);
}

}  // namespace
}  // namespace gullymark::shell
