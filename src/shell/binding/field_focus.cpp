#include "shell/binding/field_focus.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

#include "shell/binding/input_filter.h"
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

}  // namespace

FieldFocus::FieldFocus(QWidget& window, const std::vector<BoundItem>& bound)
    : window_(window), bound_(bound) {
    for (const BoundItem& item : bound_) {
        for (QWidget* widget : item.widgets) {
            tabs_ = tabs_ != nullptr ? tabs_ : qobject_cast<QTabWidget*>(widget);
        }
    }
    window_.winId();  // makes the native window
    window_.windowHandle()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focus_came(now); });
}

bool FieldFocus::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        return filter_press(static_cast<const QMouseEvent&>(*event));
    }
    if (event->type() == QEvent::KeyPress) {
        return filter_key(static_cast<const QKeyEvent&>(*event));
    }
    // A letter that turns the page comes as a key, so that the field is left first.
    if (event->type() == QEvent::ShortcutOverride && page_of(static_cast<const QKeyEvent&>(*event)) >= 0) {
        event->accept();
        return true;
    }
    return false;
}

int FieldFocus::page_of(const QKeyEvent& press) const {
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

bool FieldFocus::filter_key(const QKeyEvent& press) {
    const int page = page_of(press);
    if (page < 0) {
        return moves_on(press) && !leave_field();
    }
    if (leave_field()) {
        turn_to(page);
    }
    return true;
}

bool FieldFocus::filter_press(const QMouseEvent& press) {
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
bool FieldFocus::takes_drop(QWidget& line) {
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

bool FieldFocus::leave_field() {
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

void FieldFocus::focus_came(QWidget* widget) {
    if (widget == nullptr || widget->window() != &window_ || leaving_) {
        return;
    }
    if (showing()) {
        enter_later();
        return;
    }
    const BoundItem* arrived = item_of(bound_, widget);
    if (arrived == current_) {
        return;
    }
    if (current_ != nullptr) {
        // It went in a way that nobody asked about: the toolkit's own, as when a page is hidden.
        const std::string back = current_->item.name;
        if (!leave_field()) {
            give_to(back);
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

void FieldFocus::enter_where_focus_is() {
    if (window_.isActiveWindow()) {
        focus_came(window_.focusWidget());
    }
}

void FieldFocus::enter_later() {
    QMetaObject::invokeMethod(this, &FieldFocus::enter_where_focus_is, Qt::QueuedConnection);
}

void FieldFocus::settle() {
    if (!leaving_) {
        forget_lost_field();
        move_focus();
    }
}

void FieldFocus::forget_lost_field() {
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

void FieldFocus::give_to(const std::string& name) {
    wanted_ = named(name);
}

void FieldFocus::select_all(const std::string& name) {
    selected_ = named(name);
}

void FieldFocus::move_focus() {
    if (const BoundItem* wanted = std::exchange(wanted_, nullptr)) {
        wanted->widgets.front()->setFocus(Qt::OtherFocusReason);
    }
    select_text();
}

void FieldFocus::select_text() {
    const BoundItem* selected = std::exchange(selected_, nullptr);
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
void FieldFocus::forget_visits() {
    for (int page = 0; tabs_ != nullptr && page < tabs_->count(); ++page) {
        QWidget* field = tabs_->widget(page)->focusWidget();
        if (field != nullptr && field != window_.focusWidget()) {
            field->clearFocus();
        }
    }
}

/// The page and its first field, which the user sees only once the logic has set the page up. So the toolkit must not
/// choose before: it finds the focus outside of the pages.
void FieldFocus::turn_to(int page) {
    const bool first_visit = tabs_->widget(page)->focusWidget() == nullptr;
    if (first_visit && tabs_->currentWidget()->isAncestorOf(window_.focusWidget())) {
        tabs_->tabBar()->setFocus(Qt::OtherFocusReason);
    }
    tabs_->setCurrentIndex(page);
    begin_page(page);
}

void FieldFocus::begin_page(int page) {
    const QWidget* shown = tabs_->widget(page);
    if (shown->focusWidget() != nullptr) {
        return;
    }
    for (const BoundItem& bound : bound_) {
        QWidget& widget = *bound.widgets.front();
        const bool can_be_entered = (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled();
        if (can_be_entered && shown->isAncestorOf(&widget) && widget.isVisibleTo(shown)) {
            widget.setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void FieldFocus::move_on() {
    if (leave_field() && window_.focusWidget() != nullptr) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(window_.focusWidget(), &tab);
    }
}

const BoundItem* FieldFocus::named(const std::string& name) const {
    const auto found = std::ranges::find(
        bound_, name, [](const BoundItem& bound) -> const std::string& { return bound.item.name; });
    return found == bound_.end() ? nullptr : &*found;
}

const BoundItem* item_of(const std::vector<BoundItem>& bound, const QObject* widget) {
    const auto found = std::ranges::find_if(bound, [&](const BoundItem& item) {
        return std::ranges::find(item.widgets, widget) != item.widgets.end();
    });
    return found == bound.end() ? nullptr : &*found;
}

}  // namespace gullymark::shell
