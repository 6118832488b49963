#include "shell/binding/binder.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>

#include "shell/binding/input_filter.h"
#include "shell/binding/put_on_screen.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"

namespace gullymark::shell {
namespace {

bool is_part_of_the_toolkit(const QWidget& widget) {
    const auto own = [](const QWidget* of) { return of != nullptr && of->objectName().startsWith("qt_"); };
    return widget.objectName().isEmpty() || own(&widget) || own(widget.parentWidget());
}

/// "ftm" of "ftm_12".
QString shared_name(const QString& name) {
    static const QRegularExpression number(QStringLiteral("_[0-9]+$"));
    return QString(name).remove(number);
}

/// Each item with its widgets in `form`. Throws std::logic_error as the binder does.
std::vector<BoundItem> match(const QWidget& form, std::vector<ScreenItem> items) {
    std::string missing;
    std::vector<BoundItem> bound;
    bound.reserve(items.size());
    for (ScreenItem& item : items) {
        bound.push_back({.item = std::move(item), .widgets = {}});
    }
    const auto named = [&bound](const QString& name) {
        return std::ranges::find(bound, from_qt(name),
                                 [](const BoundItem& one) -> const std::string& { return one.item.name; });
    };
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        if (widget->isWindow() || is_part_of_the_toolkit(*widget) || name.startsWith("fixed_")) {
            continue;
        }
        auto shown = named(name);
        if (shown == bound.end()) {
            shown = named(shared_name(name));
        }
        if (shown == bound.end()) {
            missing += "\nwidget without an item: " + from_qt(name);
        } else {
            shown->widgets.push_back(widget);
        }
    }
    for (const BoundItem& item : bound) {
        if (item.widgets.empty()) {
            missing += "\nitem without a widget: " + item.item.name;
        }
    }
    if (!missing.empty()) {
        throw std::logic_error(from_qt(form.objectName()) + ":" + missing);
    }
    return bound;
}

/// A wheel turned over a list or over tabs that the user is not in means the page below, not them.
bool is_stray_wheel(const QEvent& event, const QWidget& widget) {
    const bool turns = qobject_cast<const QComboBox*>(&widget) != nullptr ||
                       qobject_cast<const QTabBar*>(&widget) != nullptr;
    return event.type() == QEvent::Wheel && turns && !widget.hasFocus();
}

}  // namespace

Binder::Binder(QWidget& form, std::vector<ScreenItem> items)
    : QObject(&form), bound_(match(form, std::move(items))), focus_(*form.window(), bound_) {
    for (const BoundItem& bound : bound_) {
        for (QWidget* widget : bound.widgets) {
            watch(bound, *widget);
        }
    }
    for (auto* bar : form.findChildren<QTabBar*>()) {
        bar->setFocusPolicy(Qt::StrongFocus);
        bar->installEventFilter(this);
    }
    add_view([this] { show(); });
}

void Binder::watch(const BoundItem& bound, QWidget& widget) {
    const ScreenItem& item = bound.item;
    widget.installEventFilter(this);
    watch_list(item, widget);
    if (QLineEdit* line = line_of(widget)) {
        line->installEventFilter(this);
        connect(line, &QLineEdit::textEdited, this, [&item](const QString& text) {
            if (item.edited) {
                handle([&] { item.edited(from_qt(text)); });
            }
        });
        const auto most = static_cast<std::size_t>(line->maxLength());
        filter_incoming_text(*line,
                             item.filter ? item.filter.text : one_line(item.limit == 0 ? most : item.limit));
    }
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        connect(button, &QAbstractButton::clicked, this, [&item] { handle(item.clicked); });
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
        connect(tabs, &QTabWidget::currentChanged, this, [this, &item](int page) {
            if (item.turned) {
                handle([&] { item.turned(page); });
            }
            // Who walks over the tabs by arrow keys stays there.
            if (!showing() && QGuiApplication::mouseButtons() != Qt::NoButton) {
                focus_.begin_page(page);
            }
        });
    }
}

void Binder::watch_list(const ScreenItem& item, QWidget& widget) {
    auto* list = qobject_cast<QComboBox*>(&widget);
    if (list == nullptr) {
        return;
    }
    list->setFocusPolicy(Qt::StrongFocus);
    list->setInsertPolicy(QComboBox::NoInsert);
    if (QLineEdit* line = list->lineEdit()) {
        list->setCompleter(nullptr);
        // The toolkit takes a typed text that is an entry for a pick of it when the focus goes. It was typed.
        disconnect(line, &QLineEdit::editingFinished, list, nullptr);
        disconnect(line, &QLineEdit::returnPressed, list, nullptr);
    }
    connect(list, &QComboBox::activated, this, [&item, list](int index) {
        const auto& told = item.picked ? item.picked : item.edited;
        if (told) {
            handle([&] { told(from_qt(list->itemText(index))); });
        }
    });
    if (item.opened) {
        list->view()->window()->installEventFilter(this);
    }
}

/// `popup` is the window in which a list drops down.
void Binder::list_opened(const QWidget& popup) {
    const BoundItem* bound = item_of(bound_, popup.parentWidget());
    if (popup.isWindow() && bound != nullptr) {
        handle(bound->item.opened);
    }
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
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
        return !focus_.takes_drop(*widget);
    }
    const BoundItem* bound = item_of(bound_, widget);
    const QLineEdit* line = line_of(*widget);
    return event->type() == QEvent::KeyPress && bound != nullptr && bound->item.filter && line != nullptr &&
           !takes_key(bound->item.filter, static_cast<const QKeyEvent&>(*event), *line);
}

void Binder::show() {
    for (const BoundItem& bound : bound_) {
        for (QWidget* widget : bound.widgets) {
            put_on_screen(bound.item, *widget);
        }
    }
    focus_.settle();
}

}  // namespace gullymark::shell
