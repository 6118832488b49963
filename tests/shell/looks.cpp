#include "looks.h"

#include <algorithm>
#include <cmath>
#include <map>

#include <gtest/gtest.h>
#include <QImage>
#include <QLabel>
#include <QToolButton>

#include "painted_texts.h"

namespace gullymark::testing_support {
namespace {

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

}  // namespace

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

void expect_icons_seen(const std::string& name, QWidget& window) {
    const QImage picture = window.grab().toImage();
    const auto ground = [&](const QWidget& widget, QPoint at) {
        return picture.pixel(widget.mapTo(&window, at));
    };
    for (const auto* button : window.findChildren<QToolButton*>()) {
        const bool has_icon = button->toolButtonStyle() != Qt::ToolButtonTextOnly;
        if (button->isVisible() && has_icon && !button->text().isEmpty()) {
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

void keep_picture(const std::string& theme, const std::string& name, QWidget& window) {
    if (const QString folder = qEnvironmentVariable("GULLYMARK_PICTURES"); !folder.isEmpty()) {
        static int number = 0;
        window.grab().save(folder + QStringLiteral("/%1_%2_%3.png")
                                        .arg(QString::fromStdString(theme))
                                        .arg(++number, 2, 10, QChar('0'))
                                        .arg(QString::fromStdString(name).replace(' ', '_')));
    }
}

}  // namespace gullymark::testing_support
