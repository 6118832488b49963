// Every text and every icon of every window, on a light and on a dark palette, by what is painted.

#include "shell/binding/contrast.h"

#include <array>

#include <gtest/gtest.h>
#include <QApplication>
#include <QTest>

#include "shell/looks.h"
#include "shell/new_road.h"
#include "shell/window_tour.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file

TEST(Contrast, IsThatOfPublishedPairs) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54,
                0.005);  // the palest gray for text on white
    EXPECT_NEAR(contrast(QColor(0x94, 0x94, 0x94), Qt::white), 3.03, 0.005);
}

TEST(Contrast, MovesAColorOnlyAsFarAsItMust) {
    const std::array white{QColor(Qt::white)};
    const std::array black{QColor(Qt::black)};
    EXPECT_EQ(readable(QColor(Qt::darkBlue), white, 4.5), QColor(Qt::darkBlue));
    EXPECT_GE(contrast(readable(QColor(0x30, 0x8c, 0xc6), white, 4.5), Qt::white), 4.5);
    EXPECT_LT(contrast(readable(QColor(0x30, 0x8c, 0xc6), white, 4.5), Qt::white), 5.2);
    EXPECT_GE(contrast(readable(QColor(80, 80, 80), black, 4.5), Qt::black), 4.5);
}

TEST(Looks, EveryTextAndIconOfEveryWindowStandsOutOnLightAndDark) {
    const QPalette before = QApplication::palette();
    for (const auto& theme : themes) {
        QApplication::setPalette(palette_of(theme));
        {
            const PlainFont plain;
            tour_windows([&](const std::string& name, QWidget& window) {
                const std::string where = std::string(theme.name) + ' ' + name;
                expect_texts_readable(where, window);
                expect_icons_seen(where, window);
            });
        }
        if (qEnvironmentVariableIsSet("GULLYMARK_PICTURES")) {
            tour_windows(
                [&](const std::string& name, QWidget& window) { keep_picture(theme.name, name, window); });
        }
    }
    QApplication::setPalette(before);
}

TEST(Looks, FollowThePaletteWhileTheProgramRuns) {
    const QPalette before = QApplication::palette();
    const PlainFont plain;
    QApplication::setPalette(palette_of(themes[0]));
    NewRoad road;
    save_a_curb_inlet();
    for (const std::size_t next : {1U, 0U, 2U, 0U}) {
        QApplication::setPalette(palette_of(themes.at(next)));
        settle();
        for (const Qt::Key letter : {Qt::Key_I, Qt::Key_R, Qt::Key_D}) {
            press(workspace(), letter, Qt::AltModifier);
            expect_texts_readable(std::string("turned ") + themes.at(next).name, workspace());
        }
        expect_icons_seen(std::string("turned ") + themes.at(next).name, workspace());
        EXPECT_EQ(line("txtzl").palette().color(QPalette::Base),
                  QApplication::palette().color(QPalette::Button));
    }
    road.leave();
    QApplication::setPalette(before);
}

}  // namespace
}  // namespace gullymark::shell
