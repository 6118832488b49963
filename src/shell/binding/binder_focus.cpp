#include <algorithm>
#include <utility>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

#include "shell/binding/binder.h"
#include "shell/binding/turn.h"

namespace gullymark::shell {
namespace {

/// The keys that move the focus.
bool moves_on(const QKeyEvent& press) {
    return press.key() == Qt::Key_Tab || press.key() == Qt::Key_Backtab;
}

/// Where a press on `widget` puts the focus; null when it stays.
QWidget* focus_of_press(QWidget* widget) {
    while (widget != nullptr && !widget->isWindow()) {
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus) {
            while (widget->focusProxy() != nullptr) {
                widget = widget->focusProxy();
            }
            return widget;
        }
        widget = widget->parentWidget();
    }
    return nullptr;
}

/// A click, with nothing in it that belongs to the event it came by: that one changes while a box is open.
struct Click {
    QPointF at;
    QPointF on_screen;
    Qt::MouseButton button;
    Qt::KeyboardModifiers modifiers;
};

void make(const Click& click, QWidget& window) {
    QWidget* target = window.childAt(click.at.toPoint());
    if (target == nullptr) {
        return;
    }
    const QPointF at = target->mapFrom(&window, click.at);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? click.button : Qt::NoButton;
        QMouseEvent event(type, at, click.at, click.on_screen, click.button, held, click.modifiers);
        QCoreApplication::sendEvent(target, &event);
    }
}

/// A wheel turned over a list or over tabs that the user is not in means the page below, not them.
bool is_stray_wheel(const QEvent& event, const QWidget& widget) {
    const bool turns = qobject_cast<const QComboBox*>(&widget) != nullptr ||
                       qobject_cast<const QTabBar*>(&widget) != nullptr;
    return event.type() == QEvent::Wheel && turns && !widget.hasFocus();
}

}  // namespace

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_.windowHandle()) {
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
            return filter_press(static_cast<const QMouseEvent&>(*event));
        }
        if (event->type() == QEvent::KeyPress) {
            return filter_key(static_cast<const QKeyEvent&>(*event));
        }
        // A letter that turns the page comes as a key, so that the field is left first.
        if (event->type() == QEvent::ShortcutOverride &&
            page_of(static_cast<const QKeyEvent&>(*event)) >= 0) {
            event->accept();
            return true;
        }
        return false;
    }
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr) {
        return false;
    }
    if (is_stray_wheel(*event, *widget)) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::Show) {
        list_opened(*widget);
        return false;
    }
    if (event->type() == QEvent::Drop) {
        return !takes_drop(*widget);
    }
    const Bound* bound = bound_to(widget);
    const QLineEdit* line = line_of(*widget);
    return event->type() == QEvent::KeyPress && bound != nullptr && bound->item.filter && line != nullptr &&
           !takes_key(bound->item.filter, static_cast<const QKeyEvent&>(*event), *line);
}

int Binder::page_of(const QKeyEvent& press) const {
    if (tabs_ == nullptr) {
        return -1;
    }
    const int step = press.key() == Qt::Key_PageDown ? 1 : press.key() == Qt::Key_PageUp ? -1 : 0;
    if (step != 0 && press.modifiers() == Qt::ControlModifier) {
        return std::clamp(tabs_->currentIndex() + step, 0, tabs_->count() - 1);
    }
    const QKeySequence keys(press.keyCombination());
    for (int page = 0; page < tabs_->count(); ++page) {
        if (QKeySequence::mnemonic(tabs_->tabText(page)) == keys) {
            return page;
        }
    }
    return -1;
}

bool Binder::filter_key(const QKeyEvent& press) {
    const int page = page_of(press);
    if (page < 0) {
        return moves_on(press) && !leave_field();
    }
    if (leave_field()) {
        turn_to(page);
    }
    return true;
}

/// `popup` is the window in which a list drops down.
void Binder::list_opened(const QWidget& popup) {
    const Bound* bound = bound_to(popup.parentWidget());
    if (popup.isWindow() && bound != nullptr) {
        handle(bound->item.opened);
    }
}

bool Binder::filter_press(const QMouseEvent& press) {
    QWidget* target = focus_of_press(window_.childAt(press.position().toPoint()));
    if (target == nullptr || target == window_.focusWidget()) {
        return false;
    }
    const Click click{.at = press.position(),
                      .on_screen = press.globalPosition(),
                      .button = press.button(),
                      .modifiers = press.modifiers()};
    const int rounds = modal_rounds();
    if (!leave_field()) {
        return true;
    }
    if (modal_rounds() == rounds) {
        return false;
    }
    // The user released the button over the box: the click is made anew.
    target->setFocus(Qt::MouseFocusReason);
    QMetaObject::invokeMethod(
        this, [this, click] { make(click, window_); }, Qt::QueuedConnection);
    return true;
}

/// A text dropped into a field is typed there: the user leaves the field before, and goes to this one.
bool Binder::takes_drop(QWidget& line) {
    QWidget& field = line.focusProxy() != nullptr ? *line.focusProxy() : line;
    if (&field == window_.focusWidget()) {
        return true;
    }
    const int rounds = modal_rounds();
    if (!leave_field() || modal_rounds() != rounds) {
        return false;
    }
    field.setFocus(Qt::MouseFocusReason);
    return true;
}

bool Binder::leave_field() {
    if (current_ == nullptr || leaving_) {
        return true;
    }
    const ScreenItem& item = current_->item;
    bool stays = false;
    if (item.leave) {
        leaving_ = true;
        handle([&] { stays = !item.leave(); });
        leaving_ = false;
    }
    stays = stays || wanted_ == current_;
    move_focus();
    if (!stays) {
        current_ = nullptr;
        enter_later();
    }
    return !stays;
}

void Binder::focus_came(QWidget* widget) {
    if (widget == nullptr || widget->window() != &window_ || leaving_) {
        return;
    }
    if (showing()) {
        enter_later();
        return;
    }
    Bound* arrived = bound_to(widget);
    if (arrived == current_) {
        return;
    }
    if (current_ != nullptr) {
        // It went in a way that nobody asked about: the toolkit's own, as when a page is hidden.
        const std::string back = current_->item.name;
        if (!leave_field()) {
            focus(back);
            move_focus();
            return;
        }
    }
    current_ = arrived;
    held_ = false;
    if (arrived != nullptr) {
        handle(arrived->item.entered);
        held_ = arrived->item.is_entered && arrived->item.is_entered();
    }
}

void Binder::enter_where_focus_is() {
    if (window_.isActiveWindow()) {
        focus_came(window_.focusWidget());
    }
}

void Binder::enter_later() {
    QMetaObject::invokeMethod(this, &Binder::enter_where_focus_is, Qt::QueuedConnection);
}

void Binder::forget_lost_field() {
    if (current_ == nullptr) {
        return;
    }
    const QWidget& widget = *current_->widgets.front();
    const bool left_by_a_command = held_ && !current_->item.is_entered();
    if (left_by_a_command || !widget.isEnabled() || widget.isHidden()) {
        current_ = nullptr;
        enter_later();
    }
}

void Binder::focus(const std::string& name) {
    wanted_ = named(name);
}

void Binder::select_all(const std::string& name) {
    selected_ = named(name);
}

void Binder::move_focus() {
    if (Bound* wanted = std::exchange(wanted_, nullptr)) {
        wanted->widgets.front()->setFocus(Qt::OtherFocusReason);
    }
    select_text();
}

void Binder::select_text() {
    Bound* selected = std::exchange(selected_, nullptr);
    QWidget* widget = selected == nullptr ? nullptr : selected->widgets.front();
    QLineEdit* line = widget == nullptr ? nullptr : line_of(*widget);
    if (line == nullptr) {
        return;
    }
    if (QGuiApplication::mouseButtons() == Qt::NoButton) {
        line->selectAll();
        return;
    }
    // A press that brought the focus sets the cursor after this; one that took it leaves nothing to select.
    QMetaObject::invokeMethod(
        line,
        [this, widget, line] {
            if (window_.focusWidget() == widget) {
                line->selectAll();
            }
        },
        Qt::QueuedConnection);
}

/// A page remembers the field in which the focus was; the toolkit puts it there again, else into the first one.
void Binder::forget_visits() {
    for (int page = 0; tabs_ != nullptr && page < tabs_->count(); ++page) {
        QWidget* field = tabs_->widget(page)->focusWidget();
        if (field != nullptr && field != window_.focusWidget()) {
            field->clearFocus();
        }
    }
}

/// The page and its first field, which the user sees only once the logic has set the page up. So the toolkit must not
/// choose before: it finds the focus outside of the pages.
void Binder::turn_to(int page) {
    const bool first_visit = tabs_->widget(page)->focusWidget() == nullptr;
    if (first_visit && tabs_->currentWidget()->isAncestorOf(window_.focusWidget())) {
        tabs_->tabBar()->setFocus(Qt::OtherFocusReason);
    }
    tabs_->setCurrentIndex(page);
    begin_page(page);
}

void Binder::begin_page(int page) {
    const QWidget* shown = tabs_->widget(page);
    if (shown->focusWidget() != nullptr) {
        return;
    }
    for (const Bound& bound : bound_) {
        QWidget& widget = *bound.widgets.front();
        const bool can_be_entered = (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled();
        if (can_be_entered && shown->isAncestorOf(&widget) && widget.isVisibleTo(shown)) {
            widget.setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void Binder::move_on() {
    if (leave_field() && window_.focusWidget() != nullptr) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(window_.focusWidget(), &tab);
    }
}

Binder::Bound* Binder::bound_to(const QObject* widget) {
    const auto found = std::ranges::find_if(bound_, [&](const Bound& bound) {
        return std::ranges::find(bound.widgets, widget) != bound.widgets.end();
    });
    return found == bound_.end() ? nullptr : &*found;
}

Binder::Bound* Binder::named(const std::string& name) {
    const auto found = std::ranges::find(
        bound_, name, [](const Bound& bound) -> const std::string& { return bound.item.name; });
    return found == bound_.end() ? nullptr : &*found;
}

}  // namespace gullymark::shell
