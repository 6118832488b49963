#pragma once

#include <array>
#include <string>

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QWidget>

/// What a user sees of a window, measured by what is painted, on a light and on a dark palette.
namespace gullymark::testing_support {

struct Theme {
    const char* name;
    QRgb window, base, button, text, highlight;
};

inline constexpr std::array themes{
    Theme{"light", 0xffefefef, 0xffffffff, 0xffefefef, 0xff000000, 0xff308cc6},
    Theme{"dark", 0xff353535, 0xff2a2a2a, 0xff353535, 0xffffffff, 0xff2a82da},
    Theme{"night", 0xff1b1e20, 0xff141618, 0xff292c30, 0xfffcfcfc, 0xff3daee9},
};

QPalette palette_of(const Theme& theme);

/// Every text that a window paints stands out from its ground by the contrast for texts.
void expect_texts_readable(const std::string& name, QWidget& window);

/// The icons of the window's tool buttons, and the pictures of its labels, stand out.
void expect_icons_seen(const std::string& name, QWidget& window);

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

/// Keeps a picture in the folder GULLYMARK_PICTURES, for who wants to look at it; nothing where that is not set.
void keep_picture(const std::string& theme, const std::string& name, QWidget& window);

}  // namespace gullymark::testing_support
