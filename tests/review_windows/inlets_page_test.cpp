// The table of inlets and the pages of one inlet.

#include <QClipboard>
#include <QHeaderView>
#include <QTabWidget>

#include "review_windows/review_stage.h"
#include "shell/windows/section_picture.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using engine::Column;
using testing::HasSubstr;

class InletsPageTest : public ReviewStage {
  protected:
    void SetUp() override {
        ReviewStage::SetUp();
        change(3, {{Column::CARRYOVER1, "0.250"}, {Column::TOTAL_DISCHARGE, "1.150"}});
        solve(3);
        save();
        open();
        find<QTabWidget>("lists").setCurrentIndex(1);
        settle();
    }
    [[nodiscard]] QTableView& inlets() const { return find<QTableView>("inlets"); }
};

TEST_F(InletsPageTest, AStaleNumberHasASignAColorAndBoldLetters) {
    const auto fresh = inlets().model()->index(3, 4);
    EXPECT_EQ(fresh.data().toString().toStdString(), "\u2260 1.324");
    EXPECT_TRUE(fresh.data(Qt::ForegroundRole).isValid());
    EXPECT_TRUE(fresh.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(cell(inlets(), 3, 1), "stale");
    EXPECT_FALSE(fresh.siblingAtRow(0).data(Qt::ForegroundRole).isValid());
}

TEST_F(InletsPageTest, APickedRowShowsItsInletAndEnterGoesThere) {
    inlets().setFocus();
    inlets().setCurrentIndex(inlets().model()->index(3, 0));
    EXPECT_EQ(text("inlet_title"), "Inlet L4: Curb Inlet, CONTINUOUS GRADE");
    EXPECT_THAT(text("inlet_numbers"), HasSubstr("Stored: total 1.150 cfs, spread "));
    EXPECT_THAT(text("inlet_numbers"), HasSubstr("\nBrought up to date: total 1.324 cfs, spread "));
    find<QTabWidget>("details").setCurrentIndex(1);
    press(*window, Qt::Key_Return);
    EXPECT_EQ(find<QTabWidget>("details").currentIndex(), 0);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "inlet_findings");
}

TEST_F(InletsPageTest, AHeadingSortsAndTheInletStaysPicked) {
    inlets().setCurrentIndex(inlets().model()->index(3, 0));
    auto& header = *inlets().horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier,
                      {header.sectionViewportPosition(3) + 10, header.height() / 2});
    EXPECT_EQ(cell(inlets(), 0, 3), "0.900");
    EXPECT_EQ(text("inlet_title"), "Inlet L4: Curb Inlet, CONTINUOUS GRADE");
    EXPECT_EQ(cell(inlets(), inlets().currentIndex().row(), 0), "L4");
}

TEST_F(InletsPageTest, SeveralRowsAreCopiedWithUnitsInTheirHeadings) {
    inlets().setFocus();
    press(*window, Qt::Key_Home, Qt::ControlModifier);
    press(*window, Qt::Key_Down, Qt::ShiftModifier);
    press(*window, Qt::Key_C, Qt::ControlModifier);
    const auto copied = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_TRUE(copied.starts_with(
        "Inlet\tState\tStation\tTotal, cfs\tFresh total, cfs\tSpread, ft\tFresh spread, ft\t"))
        << copied;
    EXPECT_EQ(std::ranges::count(copied, '\n'), 3) << copied;
    EXPECT_THAT(copied, HasSubstr("\nL2\tup to date\t"));
}

TEST_F(InletsPageTest, TheWorkedCalculationIsThatOfTheInlet) {
    inlets().setCurrentIndex(inlets().model()->index(1, 0));
    find<QTabWidget>("details").setCurrentIndex(1);
    settle();
    const auto calculation = [this] { return find<QTextBrowser>("calculation").toPlainText().toStdString(); };
    EXPECT_THAT(calculation(), HasSubstr("L2"));
    EXPECT_THAT(calculation(), HasSubstr("Mill Road"));
    press(*window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_THAT(calculation(), HasSubstr("L3"));
    QTest::mouseClick(&find("copy_as_text"), Qt::LeftButton);
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), HasSubstr("L3"));
}

TEST_F(InletsPageTest, TheCalculationIsSavedAsPdfBesideTheProject) {
    Robot robot;
    robot.files.emplace_back("calculation");
    find<QTabWidget>("details").setCurrentIndex(1);
    settle();
    find<QTextBrowser>("calculation").setFocus();
    press(*window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(read_file(folder.path("calculation.pdf")).starts_with("%PDF"));
}

TEST_F(InletsPageTest, WaterThatDoesNotFollowFromItsInputsIsHatched) {
    const auto& picture = dynamic_cast<const SectionPicture&>(find("inlet_picture"));
    inlets().setCurrentIndex(inlets().model()->index(1, 0));
    EXPECT_EQ(picture.drawn().water, section::Water::solved);
    change(1, {{Column::OPENSPREAD, "2.000"}});
    save();
    EXPECT_TRUE(comes([&] { return picture.drawn().water == section::Water::unsolved; }));
}

TEST_F(InletsPageTest, TheHeadTellsWhatToDoAndWhereTheWaterStays) {
    EXPECT_TRUE(text("to_do").starts_with("Open, solve and save, in this order: L4")) << text("to_do");
    EXPECT_TRUE(text("balance").starts_with("Runoff in 9.450 cfs, intercepted ")) << text("balance");
}

}  // namespace
}  // namespace gullymark::shell
