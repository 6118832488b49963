#include "shell/binding/binder.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

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

}  // namespace

QLineEdit* line_of(QWidget& widget) {
    auto* list = qobject_cast<QComboBox*>(&widget);
    return list != nullptr ? list->lineEdit() : qobject_cast<QLineEdit*>(&widget);
}

Binder::Binder(QWidget& form, std::vector<ScreenItem> items)
    : QObject(&form), form_(form), window_(*form.window()) {
    match(std::move(items));
    for (Bound& bound : bound_) {
        for (QWidget* widget : bound.widgets) {
            watch(bound, *widget);
        }
    }
    for (auto* bar : form_.findChildren<QTabBar*>()) {
        bar->setFocusPolicy(Qt::StrongFocus);
        bar->installEventFilter(this);
    }
    window_.winId();  // makes the native window, which sees every event before any widget does
    window_.windowHandle()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focus_came(now); });
    add_view([this] { show(); });
}

void Binder::match(std::vector<ScreenItem> items) {
    std::string missing;
    bound_.reserve(items.size());
    for (ScreenItem& item : items) {
        bound_.push_back({.item = std::move(item), .widgets = {}});
    }
    for (QWidget* widget : form_.findChildren<QWidget*>()) {
        if (widget->isWindow() || is_part_of_the_toolkit(*widget) ||
            widget->objectName().startsWith("fixed_")) {
            continue;
        }
        const std::string name = widget->objectName().toStdString();
        const std::string shared = shared_name(widget->objectName()).toStdString();
        const auto named = [&](const std::string& wanted) {
            return std::ranges::find(bound_, wanted, [](const Bound& bound) { return bound.item.name; });
        };
        auto bound = named(name);
        if (bound == bound_.end()) {
            bound = named(shared);
        }
        if (bound == bound_.end()) {
            missing += "\nwidget without an item: " + name;
        } else {
            bound->widgets.push_back(widget);
        }
    }
    for (const Bound& bound : bound_) {
        if (bound.widgets.empty()) {
            missing += "\nitem without a widget: " + bound.item.name;
        }
    }
    if (!missing.empty()) {
        throw std::logic_error(form_.objectName().toStdString() + ":" + missing);
    }
}

void Binder::watch(Bound& bound, QWidget& widget) {
    const ScreenItem& item = bound.item;
    widget.installEventFilter(this);
    watch_list(item, widget);
    if (QLineEdit* line = line_of(widget)) {
        line->installEventFilter(this);
        connect(line, &QLineEdit::textEdited, this, [&item](const QString& text) {
            if (item.edited) {
                handle([&] { item.edited(text.toStdString()); });
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
        tabs_ = tabs;
        connect(tabs, &QTabWidget::currentChanged, this, [this, &item](int page) {
            if (item.turned) {
                handle([&] { item.turned(page); });
            }
            // Who walks over the tabs by arrow keys stays there.
            if (!showing() && QGuiApplication::mouseButtons() != Qt::NoButton) {
                begin_page(page);
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
            handle([&] { told(list->itemText(index).toStdString()); });
        }
    });
    if (item.opened) {
        list->view()->window()->installEventFilter(this);
    }
}

void Binder::show() {
    for (const Bound& bound : bound_) {
        for (QWidget* widget : bound.widgets) {
            put_on_screen(bound.item, *widget);
        }
    }
    if (!leaving_) {
        forget_lost_field();
        move_focus();
    }
}

}  // namespace gullymark::shell
