#include <QClipboard>
#include <QTabWidget>

#include "review/made_road.h"
#include "review_pictures.h"
#include "review_stage.h"
#include "shell/review/road_canvas.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file
using engine::Column;

/// The pages of the road and of sizing, within the reviewer's window.
class RoadAndSizing : public ReviewStage {
  protected:
    void show_pages() {
        open();
        press(*window, Qt::Key_R, Qt::AltModifier);
        press(*window, Qt::Key_Z, Qt::AltModifier);
        settle();
    }
    [[nodiscard]] RoadCanvas& road() const { return dynamic_cast<RoadCanvas&>(find("road")); }
    [[nodiscard]] std::string sizing_title() const { return text("sizing_title"); }
};

TEST_F(RoadAndSizing, ShareTheCurrentInletWithTheFindings) {
    show_pages();
    ASSERT_TRUE(road().isVisible());
    EXPECT_EQ(road().current(), 0U);
    EXPECT_THAT(sizing_title(), testing::StartsWith("Inlet L1:"));
    road().setFocus();
    press(*window, Qt::Key_Right);
    EXPECT_EQ(road().current(), 1U);
    EXPECT_THAT(sizing_title(), testing::StartsWith("Inlet L2:"));
    press(*window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(road().current(), 2U) << "picked by the window's command";
}

TEST_F(RoadAndSizing, FollowASaveOfTheDesigner) {
    show_pages();
    EXPECT_FALSE(road().plan().inlets[2].loses_water);
    change(3, {{Column::PREINLET1, ""}, {Column::CARRYOVER1, "0.0"}});
    save();
    EXPECT_TRUE(comes([this] { return road().plan().inlets[2].loses_water; }));
}

TEST_F(RoadAndSizing, CopyTheRowOfTheListThatHasTheFocus) {
    show_pages();
    find<QTableView>("sizing").setFocus();
    press(*window, Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
                testing::StartsWith("Allowable spread\tInlet Std."));
}

TEST_F(RoadAndSizing, GoToTheInletByEnter) {
    show_pages();
    road().setFocus();
    press(*window, Qt::Key_Return);
    EXPECT_EQ(find<QTabWidget>("details").currentIndex(), 0);
}

/// With GULLYMARK_PICTURES=FOLDER the window is kept as a picture, on a light and on a dark palette.
TEST_F(RoadAndSizing, StandInTheWindow) {
    project = MadeRoad::make(12);
    save();
    show_pages();
    press(*window, Qt::Key_Z, Qt::AltModifier);
    for (const QSize size : {QSize(1240, 760), QSize(1280, 680), QSize(1000, 620)}) {
        window->resize(size);
        settle();
        keep_pictures(*window, "review_" + std::to_string(size.width()));
    }
}

}  // namespace
}  // namespace gullymark::shell
