#include "shell/binding/tool_icon.h"

#include <array>

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include "shell/binding/contrast.h"

namespace gullymark::shell {
namespace {

constexpr const char* drawn_line = "#3c4a54";
constexpr const char* drawn_accent = "#1b74b8";
constexpr const char* drawn_fill = "#e3f0f9";

/// The tool bar's own shades stay readable too.
constexpr double icon_contrast_wanted = icon_contrast + 1;

QByteArray in_colors_of(const QPalette& palette, QPalette::ColorGroup group, QByteArray drawing) {
    const std::array grounds{palette.color(group, QPalette::Window), palette.color(group, QPalette::Button)};
    const QColor text = palette.color(group, QPalette::ButtonText);
    const QColor accent = readable(QColor(drawn_accent), grounds, icon_contrast_wanted);
    const QColor line = readable(between(text, grounds.front(), 0.2), grounds, icon_contrast_wanted);
    drawing.replace(drawn_line, line.name().toLatin1());
    drawing.replace(drawn_accent,
                    group == QPalette::Disabled ? line.name().toLatin1() : accent.name().toLatin1());
    drawing.replace(drawn_fill, between(grounds.front(), accent, 0.12).name().toLatin1());
    return drawing;
}

class ToolIcon : public QIconEngine {
  public:
    explicit ToolIcon(QByteArray drawing) : drawing_(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QSvgRenderer drawn(in_colors_of(QApplication::palette(), group, drawing_));
        drawn.render(painter, rect);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new ToolIcon(*this); }

  private:
    QByteArray drawing_;
};

}  // namespace

QIcon tool_icon(const QString& name) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? QIcon(new ToolIcon(file.readAll())) : QIcon();
}

}  // namespace gullymark::shell
