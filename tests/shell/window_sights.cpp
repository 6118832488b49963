#include "window_sights.h"

#include <stdexcept>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTabWidget>

#include "editor/form/screen_fields.h"
#include "shell/binding/input_filter.h"
#include "shell/windows/section_picture.h"

namespace gullymark::roads {
namespace {

template <class Kind>
const Kind& as(const QWidget& widget, const char* kind) {
    if (const auto* found = qobject_cast<const Kind*>(&widget)) {
        return *found;
    }
    throw std::runtime_error(widget.objectName().toStdString() + " is no " + kind);
}

std::string own_caption(const QWidget& widget) {
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) {
        return frame->title().toStdString();
    }
    return as<QLabel>(widget, "label").text().toStdString();
}

/// The page on which a widget stands, else its window.
const QWidget* page_around(const QWidget& widget) {
    const QWidget* page = &widget;
    while (!page->isWindow() && qobject_cast<const QStackedWidget*>(page->parentWidget()) == nullptr) {
        page = page->parentWidget();
    }
    return page;
}

}  // namespace

std::string text_in(const QWidget& field) {
    if (const auto* list = qobject_cast<const QComboBox*>(&field)) {
        const bool beside_its_entries = !list->isEditable() && list->currentIndex() < 0;
        return (beside_its_entries ? list->placeholderText() : list->currentText()).toStdString();
    }
    if (const auto* label = qobject_cast<const QLabel*>(&field)) {
        return label->text().toStdString();
    }
    return as<QLineEdit>(field, "text").text().toStdString();
}

bool is_on(const QWidget& field) {
    const QLineEdit* line = shell::line_of(const_cast<QWidget&>(field));
    return field.isEnabled() && field.isVisibleTo(page_around(field)) &&
           (line == nullptr || !line->isReadOnly());
}

bool is_checked(const QWidget& field) {
    return as<QAbstractButton>(field, "button").isChecked();
}

bool is_shown(const QWidget& field) {
    return field.isVisible();
}

std::string caption_of(const QWidget& window, const std::string& name) {
    const QRegularExpression names("^" + QString::fromStdString(name) + "(_[0-9]+)?$");
    std::string caption;
    const auto bearers = window.findChildren<QWidget*>(names);
    if (bearers.empty()) {
        throw std::runtime_error("nothing is called " + name);
    }
    for (const QWidget* bearer : bearers) {
        const std::string own = own_caption(*bearer);
        if (bearer == bearers.front()) {
            caption = own;
        } else if (caption != own) {
            caption += " or " + own;
        }
    }
    return caption;
}

std::vector<std::string> entries_of(const QWidget& field) {
    const auto& list = as<QComboBox>(field, "list");
    std::vector<std::string> entries;
    for (int i = 0; i < list.count(); ++i) {
        entries.push_back(list.itemText(i).toStdString());
    }
    return entries;
}

std::string plain(QString caption) {
    return caption.remove('&').toStdString();
}

QAction& command_of(const QMainWindow& window, const std::string& caption) {
    for (const QMenu* menu : window.menuBar()->findChildren<QMenu*>()) {
        for (QAction* action : menu->actions()) {
            if (plain(action->text()) == caption) {
                return *action;
            }
        }
    }
    throw std::runtime_error("the menu has no " + caption);
}

QAbstractButton& button_of(const QWidget& window, const std::string& caption) {
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        if (plain(button->text()) == caption && button->isVisible()) {
            return *button;
        }
    }
    throw std::runtime_error("no button is called " + caption);
}

std::string focus_in(const QWidget& window) {
    const QWidget* in = window.isActiveWindow() ? window.focusWidget() : nullptr;
    const std::string name = in == nullptr ? "" : in->objectName().toStdString();
    return editor::field_named(name) ? name : "";
}

int page_of(const QWidget& window) {
    return window.findChild<QTabWidget*>("SSTab1")->currentIndex();
}

std::string panel_of(const QWidget& window, const std::string& bar, int panel) {
    const auto name = QString::fromStdString(bar + "_panel" + std::to_string(panel));
    return window.findChild<QLabel*>(name)->text().toStdString();
}

int marked_row(const QWidget& window) {
    const auto marked = rows_of(window).selectionModel()->selectedRows();
    return marked.isEmpty() ? 0 : marked.front().row() + 1;
}

QTableView& rows_of(const QWidget& window) {
    auto* rows = window.findChild<QTableView*>();
    if (rows == nullptr) {
        throw std::runtime_error("the window has no rows");
    }
    return *rows;
}

std::string said_of_the_water(const QWidget& window) {
    const auto pictures = window.findChildren<shell::SectionPicture*>(QRegularExpression("picture$"));
    for (const shell::SectionPicture* picture : pictures) {
        if (!picture->isVisible()) {
            continue;
        }
        for (const std::string& note : picture->drawn().notes) {
            if (note == "not solved" || note == "no results") {
                return note;
            }
        }
        return "solved";
    }
    return {};
}

}  // namespace gullymark::roads
