#include "shell/binding/small_screen.h"

#include <optional>
#include <utility>

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>

namespace gullymark::shell {
namespace {

/// What a window manager puts around a window, which it tells only when the window is there.
QSize frame_around(const QWidget& window) {
    constexpr int border = 6;
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return {2 * border, title + 2 * border};
}

void fit_to_screen(QWidget& window) {
    const QSize room = window.screen()->availableSize() - frame_around(window);
    if (!window.isMaximized() && (window.width() > room.width() || window.height() > room.height())) {
        window.resize(window.size().boundedTo(room));
    }
}

class ScreenKeeper : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* window = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && !event->spontaneous() && window != nullptr &&
            window->isWindow() &&
            (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog)) {
            fit_to_screen(*window);
        }
        return false;
    }
};

class ScrolledPage : public QScrollArea {
  public:
    ScrolledPage(QWidget& page, QWidget* parent) : QScrollArea(parent) {
        setObjectName(QStringLiteral("fixed_scroll"));
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setWidget(&page);
        page.show();
        // What the tabs draw below their pages shows through.
        viewport()->setAutoFillBackground(false);
        page.setAutoFillBackground(false);
        setFocusPolicy(Qt::NoFocus);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now != nullptr && widget()->isAncestorOf(now)) {
                bring_into_sight(*now);
            }
        });
    }

    /// The whole page, where there is room.
    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }

  protected:
    /// The toolkit's own would bring the cursor into sight, and push a part of the field out of it.
    bool focusNextPrevChild(bool next) override {
        return QWidget::focusNextPrevChild(next);  // NOLINT(bugprone-parent-virtual-call)
    }

  private:
    void bring_into_sight(const QWidget& field) {
        constexpr int margin = 8;
        const QRect place(field.mapTo(widget(), QPoint()), field.size());
        ensureVisible(place.right(), place.bottom(), margin, margin);
        ensureVisible(place.left(), place.top(), margin, margin);
    }
};

std::optional<QScrollBar::SliderAction> action_of(int key) {
    switch (key) {
        case Qt::Key_Up:
            return QScrollBar::SliderSingleStepSub;
        case Qt::Key_Down:
            return QScrollBar::SliderSingleStepAdd;
        case Qt::Key_PageUp:
            return QScrollBar::SliderPageStepSub;
        case Qt::Key_PageDown:
            return QScrollBar::SliderPageStepAdd;
        default:
            return std::nullopt;
    }
}

/// The keys of the tabs that scroll the page in front.
class PageKeys : public QObject {
  public:
    explicit PageKeys(QTabWidget& tabs) : QObject(&tabs), tabs_(tabs) {}

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto& press = static_cast<const QKeyEvent&>(*event);
        const auto action = action_of(press.key());
        const auto modifiers = press.modifiers() & ~Qt::KeypadModifier;
        auto* page = dynamic_cast<ScrolledPage*>(tabs_.currentWidget());
        if (!action || page == nullptr || (modifiers & ~Qt::ShiftModifier) != 0) {
            return false;
        }
        const bool sideways = modifiers == Qt::ShiftModifier;
        (sideways ? page->horizontalScrollBar() : page->verticalScrollBar())->triggerAction(*action);
        return true;
    }

  private:
    QTabWidget& tabs_;
};

}  // namespace

void keep_windows_on_screen() {
    if (static bool kept = false; !std::exchange(kept, true)) {
        qApp->installEventFilter(new ScreenKeeper(qApp));
    }
}

void scroll_pages(QTabWidget& tabs) {
    const int front = tabs.currentIndex();
    for (int i = 0; i < tabs.count(); ++i) {
        QWidget& page = *tabs.widget(i);
        const QString title = tabs.tabText(i);
        tabs.removeTab(i);
        tabs.insertTab(i, new ScrolledPage(page, &tabs), title);
    }
    tabs.setCurrentIndex(front);
    tabs.tabBar()->installEventFilter(new PageKeys(tabs));
}

}  // namespace gullymark::shell
