#pragma once

#include <string>

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include "shell/robot.h"

namespace gullymark::testing_support {

/// A palette as desktops that are dark have it.
inline QPalette dark_palette() {
    QPalette dark(QColor(45, 45, 48), QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::AlternateBase, QColor(38, 38, 41));
    dark.setColor(QPalette::Highlight, QColor(30, 110, 200));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

/// Keeps what a widget looks like on a light and on a dark palette, where GULLYMARK_PICTURES names a folder.
inline void keep_pictures(QWidget& widget, const std::string& name) {
    const QString folder = qEnvironmentVariable("GULLYMARK_PICTURES");
    const QPalette light = QApplication::palette();
    for (const bool is_dark : {false, true}) {
        QApplication::setPalette(is_dark ? dark_palette() : light);
        settle();
        const QPixmap picture = widget.grab();
        ASSERT_FALSE(picture.isNull());
        if (!folder.isEmpty()) {
            picture.save(folder + '/' + QString::fromStdString(name) + (is_dark ? "_dark" : "") + ".png");
        }
    }
    QApplication::setPalette(light);
    settle();
}

}  // namespace gullymark::testing_support
