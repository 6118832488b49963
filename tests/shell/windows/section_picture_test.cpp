#include "shell/windows/section_picture.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QGroupBox>

#include "shell/new_road.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file

SectionPicture& picture(const char* name) {
    return dynamic_cast<SectionPicture&>(*workspace().findChild<QWidget*>(name));
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    int paints = 0;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

TEST(PictureOfASection, IsPaintedOnceForAKeyAndNotForOneThatChangesNothing) {
    NewRoad road;
    save_a_curb_inlet();
    press(workspace(), Qt::Key_E, Qt::ControlModifier);
    press(workspace(), Qt::Key_I, Qt::AltModifier);
    line("txtW").setFocus();
    line("txtW").selectAll();
    settle();
    PaintCounter counter(picture("fixed_section_picture"));
    type(workspace(), "3");
    settle();
    EXPECT_EQ(counter.paints, 1);
    EXPECT_EQ(picture("fixed_section_picture").drawn().water, section::Water::unsolved);
    type(workspace(), "-");
    settle();
    EXPECT_EQ(counter.paints, 1) << "a key that the field drops";
    road.leave();
}

TEST(PictureOfASection, TellsAScreenReaderWhatItShowsAndTakesNoFocus) {
    NewRoad road;
    save_a_curb_inlet();
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    settle();
    SectionPicture& results = picture("fixed_results_picture");
    EXPECT_EQ(results.focusPolicy(), Qt::NoFocus);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&results);
    ASSERT_NE(told, nullptr);
    EXPECT_EQ(told->text(QAccessible::Name).toStdString(), "Section of the inlet");
    EXPECT_EQ(told->text(QAccessible::Description).toStdString(),
              "Section at the inlet, L 2.00 ft: spread 8.813 ft, 0.813 ft beyond the allowable 8.0 ft, depth "
              "3.700 in.");
    road.leave();
}

TEST(PictureOfASection, WaitsWhileNobodySeesIt) {
    NewRoad road;
    save_a_curb_inlet();
    press(workspace(), Qt::Key_E, Qt::ControlModifier);
    press(workspace(), Qt::Key_I, Qt::AltModifier);
    line("txtW").setFocus();
    line("txtW").selectAll();
    type(workspace(), "3");
    settle();
    EXPECT_EQ(picture("fixed_section_picture").drawn().water, section::Water::unsolved);
    EXPECT_EQ(picture("fixed_results_picture").drawn().water, section::Water::solved)
        << "as it was seen last";
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    settle();
    EXPECT_EQ(picture("fixed_results_picture").drawn().water, section::Water::unsolved);
    road.leave();
}

TEST(PictureOfASection, IsDrawnInTheColorsOfAUsablePageThoughResultsAreOff) {
    NewRoad road;
    save_a_curb_inlet();
    press(workspace(), Qt::Key_R, Qt::AltModifier);
    settle();
    SectionPicture& results = picture("fixed_results_picture");
    EXPECT_FALSE(workspace().findChild<QGroupBox*>("Results_Frame")->isEnabled());
    const QImage image = results.grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() - 4, 4),
              QApplication::palette().color(QPalette::Active, QPalette::Base));
    road.leave();
}

}  // namespace
}  // namespace gullymark::shell
