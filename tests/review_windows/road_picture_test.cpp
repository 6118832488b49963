#include "shell/review/road_picture.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include "review/made_road.h"
#include "review_pictures.h"
#include "review_stage.h"
#include "shell/review/road_canvas.h"
#include "shell/review/road_painter.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file

class RoadPictureTest : public testing::Test {
  protected:
    void SetUp() override { prepare_review(); }
    void TearDown() override {
        picture.reset();
        platform::outside = {};
    }

    void show(std::size_t inlets) { show(MadeRoad::make(inlets)); }
    void show(review::Project project) {
        reviewed.project = std::move(project);
        reviewed.findings = review::judge(reviewed.project, {});
        reviewed.fresh = review::make_fresh_road(reviewed.project);
        picture = std::make_unique<RoadPicture>();
        picture->picked = [this](std::size_t inlet) { picked.push_back(inlet); };
        picture->resize(700, 520);
        picture->show_project(reviewed);
        activate(*picture);
        canvas().setFocus();
        settle();
    }
    [[nodiscard]] RoadCanvas& canvas() const { return picture->canvas(); }
    [[nodiscard]] QPoint spot(std::size_t inlet) const { return canvas().placed().symbol(inlet).toPoint(); }
    [[nodiscard]] bool is_in_sight(std::size_t inlet) const {
        return canvas().viewport()->rect().contains(spot(inlet));
    }
    void turn_wheel(int by, Qt::KeyboardModifiers modifiers = Qt::NoModifier, QPoint at = {300, 150}) const {
        QWidget* port = canvas().viewport();
        QWheelEvent event(at, port->mapToGlobal(at), {}, {0, by}, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(port, &event);
        settle();
    }

    review::Reviewed reviewed;
    std::unique_ptr<RoadPicture> picture;
    std::vector<std::size_t> picked;
};

TEST_F(RoadPictureTest, PicksAnInletByAClick) {
    show(12);
    click(*canvas().viewport(), spot(4));
    EXPECT_EQ(picked, (std::vector<std::size_t>{4}));
    EXPECT_EQ(canvas().current(), 4U);
    click(*canvas().viewport(), {2, canvas().viewport()->height() - 2});
    EXPECT_EQ(picked.size(), 1U) << "nothing stands there";
}

TEST_F(RoadPictureTest, GoesAlongTheRoadByTheKeys) {
    show(12);
    const auto& along = canvas().plan().along;
    press(*picture, Qt::Key_Home);
    EXPECT_EQ(picked.back(), along.front());
    press(*picture, Qt::Key_Right);
    EXPECT_EQ(picked.back(), along.at(1));
    press(*picture, Qt::Key_Left);
    press(*picture, Qt::Key_Left);
    EXPECT_EQ(picked.back(), along.front()) << "before the first there is none";
    press(*picture, Qt::Key_End);
    EXPECT_EQ(picked.back(), along.back());
    int asked = 0;
    picture->entered = [&asked] { ++asked; };
    press(*picture, Qt::Key_Return);
    EXPECT_EQ(asked, 1);
}

TEST_F(RoadPictureTest, ZoomsByTheKeysOfAKeyboardAndShowsAllAgain) {
    show(12);
    const auto stretch = [this] { return canvas().placed().view().to - canvas().placed().view().from; };
    const double whole = stretch();
    type(*picture, "+");
    EXPECT_LT(stretch(), whole);
    type(*picture, "-");
    EXPECT_NEAR(stretch(), whole, whole * 1e-6);
    type(*picture, "+++");
    press(*picture, Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(stretch(), whole, whole * 1e-6);
    for (int i = 0; i < 60; ++i) {
        canvas().zoom(1.6);
    }
    EXPECT_GT(stretch(), 1) << "a zoom ends somewhere";
}

TEST_F(RoadPictureTest, ZoomsByTheWheelAboutThePointerAndPansWithShift) {
    show(100);
    const double x = 300;
    const auto station = [this, x] {
        const auto view = canvas().placed().view();
        return view.from + x / view.area.width() * (view.to - view.from);
    };
    const double before = station();
    turn_wheel(360);
    EXPECT_NEAR(station(), before, 5) << "what is under the pointer stays there";
    const int at = canvas().horizontalScrollBar()->value();
    turn_wheel(-120, Qt::ShiftModifier);
    EXPECT_EQ(canvas().horizontalScrollBar()->value(), at + 120);
    turn_wheel(-12000);
    EXPECT_EQ(canvas().horizontalScrollBar()->maximum(), 0) << "all of the road is there again";
}

TEST_F(RoadPictureTest, PansByADragWhichPicksNothing) {
    show(100);
    canvas().zoom(8);
    canvas().horizontalScrollBar()->setValue(400);
    settle();
    QWidget* port = canvas().viewport();
    QTest::mousePress(port, Qt::LeftButton, {}, {300, 150});
    QTest::mouseMove(port, {280, 150});
    QTest::mouseMove(port, {200, 150});
    QTest::mouseRelease(port, Qt::LeftButton, {}, {200, 150});
    settle();
    EXPECT_EQ(canvas().horizontalScrollBar()->value(), 500);
    EXPECT_TRUE(picked.empty());
    press(*picture, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_GT(canvas().horizontalScrollBar()->value(), 500);
    EXPECT_TRUE(picked.empty()) << "with Shift an arrow pans";
}

TEST_F(RoadPictureTest, BringsTheCurrentInletIntoSight) {
    show(1000);
    for (int i = 0; i < 12; ++i) {
        canvas().zoom(1.6);
    }
    picture->set_current(900);
    EXPECT_TRUE(is_in_sight(900));
    picture->set_current(7);  // in the lane of those without a station
    EXPECT_TRUE(is_in_sight(7));
    picture->set_current(std::nullopt);
    EXPECT_TRUE(picked.empty()) << "nobody is told of what the window itself has set";
}

TEST_F(RoadPictureTest, TellsAnInletInItsTipWithoutReadingItsTextsAsMarkup) {
    auto project = MadeRoad::make(12);
    project.inlets[2].load(engine::Column::INLET_NUMBER, "<b>2</b>");
    show(std::move(project));
    QHelpEvent event(QEvent::ToolTip, spot(2), canvas().viewport()->mapToGlobal(spot(2)));
    QCoreApplication::sendEvent(canvas().viewport(), &event);
    const std::string tip = QToolTip::text().toStdString();
    EXPECT_THAT(tip, testing::HasSubstr("Inlet &lt;b&gt;2&lt;/b&gt;, Combination Curb and Grate Inlet"));
    EXPECT_THAT(tip, testing::HasSubstr("Station 11+20"));
    EXPECT_THAT(tip, testing::HasSubstr("allowable"));
    EXPECT_THAT(tip, testing::HasSubstr("Bypass"));
}

TEST_F(RoadPictureTest, TellsAScreenReaderTheCurrentInlet) {
    show(12);
    picture->set_current(3);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&canvas());
    ASSERT_NE(told, nullptr);
    EXPECT_THAT(told->text(QAccessible::Description).toStdString(), testing::StartsWith("Inlet 4, Slotted"));
}

TEST_F(RoadPictureTest, KeepsThePlaceWhenTheSameRoadComesAgain) {
    show(100);
    canvas().zoom(8);
    canvas().horizontalScrollBar()->setValue(700);
    picture->show_project(reviewed);
    settle();
    EXPECT_EQ(canvas().horizontalScrollBar()->value(), 700);
    picture->hide();
    picture->show_project(reviewed);
    picture->set_current(50);
    picture->show();
    settle();
    EXPECT_EQ(canvas().current(), 50U) << "drawn when it is looked at";
}

TEST_F(RoadPictureTest, PaintsAnyRoad) {
    for (const std::size_t inlets : {0U, 1U, 2U, 1000U}) {
        show(inlets);
        EXPECT_FALSE(picture->grab().isNull());
        press(*picture, Qt::Key_Right);
        press(*picture, Qt::Key_End);
        type(*picture, "+-");
    }
    auto project = MadeRoad::make(300);
    for (std::size_t i = 0; i < project.inlets.size(); ++i) {
        project.inlets[i].load(engine::Column::STATION, i % 2 == 0 ? "10+00" : "9999999");
        project.inlets[i].load(engine::Column::INLET_NUMBER, std::string(300, 'W'));
        project.inlets[i].load(engine::Column::ROADWAY, std::to_string(i % 50));
    }
    show(std::move(project));
    EXPECT_FALSE(picture->grab().isNull());
}

/// The paint of a stretch on paper stays within its rectangle.
TEST_F(RoadPictureTest, PaintsAStretchIntoItsRectangleAlone) {
    const auto project = MadeRoad::make(60);
    const auto plan = review::plan_road(project, review::judge(project, {}));
    QImage page(800, 600, QImage::Format_RGB32);
    page.fill(Qt::magenta);
    QPainter painter(&page);
    const QRect strip(100, 100, 500, 250);
    paint_road(painter, strip, plan, 1000, 2000, road_colors_on_paper());
    painter.end();
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (!strip.adjusted(-1, -1, 1, 1).contains(x, y)) {
                ASSERT_EQ(page.pixelColor(x, y), QColor(Qt::magenta)) << x << ',' << y;
            }
        }
    }
    EXPECT_NE(page.pixelColor(strip.center()), QColor(Qt::magenta));
}

/// With GULLYMARK_PICTURES=FOLDER the page is kept as a picture, on a light and on a dark palette.
TEST_F(RoadPictureTest, LooksLikeARoadOnLightAndDark) {
    for (const std::size_t inlets : {12U, 1000U}) {
        show(inlets);
        picture->resize(680, 560);
        picture->set_current(inlets / 2);
        settle();
        keep_pictures(*picture, "road_" + std::to_string(inlets));
    }
    for (int i = 0; i < 6; ++i) {
        canvas().zoom(1.6);
    }
    settle();
    keep_pictures(*picture, "road_1000_near");
}

}  // namespace
}  // namespace gullymark::shell
