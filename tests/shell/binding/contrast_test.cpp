// Every text and every icon of every window, on a light and on a dark palette, by what is painted.

#include "shell/binding/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QStyle>
#include <QTest>
#include <QToolButton>

#include "shell/binding/tool_icon.h"
#include "shell/new_road.h"
#include "shell/painted_texts.h"
#include "shell/window_tour.h"

namespace gullymark::shell {
namespace {

using namespace testing_support;  // NOLINT(google-build-using-namespace): the user of the whole file

/// The definition of WCAG 2.1, once more.
double measured_contrast(QRgb one, QRgb other) {
    const auto light = [](QRgb color) {
        const auto part = [](int value) {
            const double v = value / 255.0;
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) + 0.0722 * part(qBlue(color)) + 0.05;
    };
    return std::max(light(one), light(other)) / std::min(light(one), light(other));
}

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

struct Theme {
    const char* name;
    QRgb window, base, button, text, highlight;
};

constexpr std::array themes{
    Theme{"light", 0xffefefef, 0xffffffff, 0xffefefef, 0xff000000, 0xff308cc6},
    Theme{"dark", 0xff353535, 0xff2a2a2a, 0xff353535, 0xffffffff, 0xff2a82da},
    Theme{"night", 0xff1b1e20, 0xff141618, 0xff292c30, 0xfffcfcfc, 0xff3daee9},
};

QPalette palette_of(const Theme& theme) {
    QPalette palette(QColor(theme.button), QColor(theme.window));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(theme.text));
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    }
    palette.setColor(QPalette::Base, QColor(theme.base));
    palette.setColor(QPalette::AlternateBase, QColor(theme.window));
    palette.setColor(QPalette::Highlight, QColor(theme.highlight));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

/// The color that most of a part of a picture has, but for the text in it. Shades of one ground count together.
QRgb ground_of(const QImage& picture, const QRect& part, QRgb text) {
    struct Shade {
        int count = 0;
        QRgb color = 0;
    };
    std::map<QRgb, Shade> shades;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (const QRgb pixel = picture.pixel(x, y); pixel != text) {
                Shade& shade = shades[pixel & 0xf0f0f0];
                shade = {shade.count + 1, pixel};
            }
        }
    }
    Shade widest{0, text};
    for (const auto& [key, shade] : shades) {
        widest = shade.count > widest.count ? shade : widest;
    }
    return widest.color;
}

void expect_texts_readable(const std::string& name, QWidget& window) {
    const QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    int texts = 0;
    for (const PaintedText& text : painted_texts(window)) {
        const QRect part = text.where & picture.rect();
        if (part.isEmpty()) {
            continue;
        }
        const QRgb ground = ground_of(picture, part, text.color.rgb());
        EXPECT_GE(measured_contrast(text.color.rgb(), ground), 4.5)
            << name << ": \"" << text.text.toStdString() << "\" " << text.color.name().toStdString() << " on "
            << QColor(ground).name().toStdString();
        ++texts;
    }
    EXPECT_GT(texts, 0) << name << " paints no text";
}

/// How often each opaque color stands in a picture.
std::map<QRgb, int> solid_colors(const QImage& icon) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            if (qAlpha(icon.pixel(x, y)) == 255) {
                ++counts[icon.pixel(x, y)];
            }
        }
    }
    return counts;
}

/// Each solid color of an icon of lines stands out from the ground, or is a mere tint of it.
void expect_lines_seen(const std::string& name, const QImage& icon, QRgb ground) {
    const auto colors = solid_colors(icon);
    int solid = 0;
    int seen = 0;
    for (const auto& [color, count] : colors) {
        solid += count;
        seen += measured_contrast(color, ground) >= 3 ? count : 0;
    }
    for (const auto& [color, count] : colors) {
        const double ratio = measured_contrast(color, ground);
        EXPECT_TRUE(count * 20 < solid || ratio >= 3 || ratio < 1.6)
            << name << ": " << QColor(color).name().toStdString() << " on "
            << QColor(ground).name().toStdString();
    }
    EXPECT_GT(seen * 4, solid) << name << " on " << QColor(ground).name().toStdString();
}

/// A picture may bring a ground of its own.
void expect_picture_seen(const std::string& name, const QImage& picture, QRgb ground) {
    const auto colors = solid_colors(picture);
    const QRgb own =
        std::ranges::max_element(colors, {}, [](const auto& entry) { return entry.second; })->first;
    int solid = 0;
    int seen = 0;
    for (const auto& [color, count] : colors) {
        solid += count;
        seen += measured_contrast(color, ground) >= 3 || measured_contrast(color, own) >= 3 ? count : 0;
    }
    EXPECT_GT(seen * 10, solid) << name << " on " << QColor(ground).name().toStdString();
}

/// Large, so that the edges count little.
QImage painted(const QIcon& icon, bool enabled) {
    return icon.pixmap(QSize(192, 192), 1.0, enabled ? QIcon::Normal : QIcon::Disabled)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

void expect_icons_seen(const std::string& name, QWidget& window) {
    const QImage picture = window.grab().toImage();
    const auto ground = [&](const QWidget& widget, QPoint at) {
        return picture.pixel(widget.mapTo(&window, at));
    };
    for (const auto* button : window.findChildren<QToolButton*>()) {
        if (button->isVisible() && !button->text().isEmpty()) {
            expect_lines_seen(name + ", " + button->text().toStdString(),
                              painted(button->icon(), button->isEnabled()),
                              ground(*button, {button->width() / 2, 3}));
        }
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->pixmap(Qt::ReturnByValue).isNull()) {
            expect_picture_seen(name + ", " + label->objectName().toStdString(),
                                label->pixmap(Qt::ReturnByValue).toImage(), ground(*label, {1, 1}));
        }
    }
}

/// Texts without shades at their edges.
struct PlainFont {
    QFont before = QApplication::font();
    PlainFont() {
        QFont plain = before;
        plain.setStyleStrategy(QFont::NoAntialias);
        QApplication::setFont(plain);
    }
    ~PlainFont() { QApplication::setFont(before); }
    PlainFont(const PlainFont&) = delete;
    PlainFont& operator=(const PlainFont&) = delete;
};

/// A folder in which to keep the pictures, for who wants to look at them.
void keep_picture(const std::string& theme, const std::string& name, QWidget& window) {
    if (const QString folder = qEnvironmentVariable("GULLYMARK_PICTURES"); !folder.isEmpty()) {
        static int number = 0;
        window.grab().save(folder + QStringLiteral("/%1_%2_%3.png")
                                        .arg(QString::fromStdString(theme))
                                        .arg(++number, 2, 10, QChar('0'))
                                        .arg(QString::fromStdString(name).replace(' ', '_')));
    }
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
