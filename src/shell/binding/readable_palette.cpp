#include "shell/binding/readable_palette.h"

#include <array>
#include <utility>
#include <vector>

#include <QApplication>
#include <QEvent>
#include <QPalette>

#include "shell/binding/contrast.h"
#include "shell/binding/turn.h"

namespace gullymark::shell {
namespace {

/// What the toolkit's style puts between these grounds, by shading them, is then readable too.
constexpr double text_contrast_wanted = text_contrast + 1;

/// A text and the ground that it stands on most.
struct TextRole {
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

constexpr std::array disabled_texts{TextRole{QPalette::WindowText, QPalette::Window},
                                    TextRole{QPalette::Text, QPalette::Base},
                                    TextRole{QPalette::ButtonText, QPalette::Button}};

/// The grounds on which a text of the form can stand.
std::array<QColor, 4> grounds_of(const QPalette& palette, QPalette::ColorGroup group) {
    return {palette.color(group, QPalette::Window), palette.color(group, QPalette::Base),
            palette.color(group, QPalette::Button), palette.color(group, QPalette::AlternateBase)};
}

/// A color that this program gave in place of the desktop's.
struct Given {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    QColor color;
};

std::vector<Given> given;

void put(QPalette& palette, QPalette::ColorGroup group, QPalette::ColorRole role, const QColor& color) {
    if (palette.color(group, role) != color) {
        palette.setColor(group, role, color);
        given.push_back({group, role, color});
    }
}

QPalette::ResolveMask mark_of(const Given& color) {
    QPalette alone;
    alone.setResolveMask(0);
    alone.setColor(color.group, color.role, color.color);
    return alone.resolveMask();
}

/// The palette without what this program gave: those colors come from the desktop again.
QPalette desktops_palette() {
    QPalette palette = QApplication::palette();
    for (const Given& color : std::exchange(given, {})) {
        if (palette.color(color.group, color.role) == color.color) {
            palette.setResolveMask(palette.resolveMask() & ~mark_of(color));
        }
    }
    QApplication::setPalette(palette);
    return QApplication::palette();
}

/// Paler than a text that can be changed, as far as it stays readable.
void set_disabled_texts(QPalette& palette) {
    constexpr double paler = 0.35;
    const auto grounds = grounds_of(palette, QPalette::Disabled);
    for (const auto& role : disabled_texts) {
        const QColor pale = between(palette.color(QPalette::Active, role.text),
                                    palette.color(QPalette::Active, role.ground), paler);
        put(palette, QPalette::Disabled, role.text, readable(pale, grounds, text_contrast_wanted));
    }
}

/// An empty list shows a text that is none of its entries as a hint.
void set_hints(QPalette& palette, QPalette::ColorGroup group) {
    const QColor ground = palette.color(group, QPalette::Base);
    const QColor hint = palette.color(group, QPalette::PlaceholderText);
    const QColor seen = between(ground, QColor(hint.rgb()), static_cast<double>(hint.alphaF()));
    put(palette, group, QPalette::PlaceholderText, readable(seen, grounds_of(palette, group), text_contrast));
}

void set_marked_texts(QPalette& palette, QPalette::ColorGroup group) {
    const std::array text{palette.color(group, QPalette::HighlightedText)};
    put(palette, group, QPalette::Highlight,
        readable(palette.color(group, QPalette::Highlight), text, text_contrast));
}

void make_texts_readable() {
    QPalette palette = desktops_palette();
    set_disabled_texts(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        set_hints(palette, group);
        set_marked_texts(palette, group);
    }
    QApplication::setPalette(palette);
}

class PaletteFollower : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && !working_) {
            working_ = true;
            make_texts_readable();
            working_ = false;
            // Queued: the windows get the palette after the application.
            QMetaObject::invokeMethod(this, show_all, Qt::QueuedConnection);
        }
        return false;
    }

  private:
    bool working_ = false;  // its own changes come as changes too
};

}  // namespace

void keep_texts_readable() {
    make_texts_readable();
    if (static bool followed = false; !std::exchange(followed, true)) {
        qApp->installEventFilter(new PaletteFollower(qApp));
    }
}

}  // namespace gullymark::shell
