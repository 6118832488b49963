#include "shell/binding/put_on_screen.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTabWidget>

#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

QString text_of(const ScreenItem& item) {
    return to_qt(item.text ? item.text() : item.field->text);
}

void put_text(QLineEdit& line, const ScreenItem& item) {
    const QString text = text_of(item);
    if (line.text() != text) {
        line.setText(text);
    }
    if (line.isReadOnly() != item.field->locked) {
        line.setReadOnly(item.field->locked);
    }
}

bool has_entries(const QComboBox& list, const std::vector<std::string>& entries) {
    if (list.count() != static_cast<int>(entries.size())) {
        return false;
    }
    for (int i = 0; i < list.count(); ++i) {
        if (list.itemText(i) != to_qt(entries[static_cast<std::size_t>(i)])) {
            return false;
        }
    }
    return true;
}

void put_text(QComboBox& list, const ScreenItem& item) {
    const QSignalBlocker blocker(list);
    const QString text = text_of(item);
    if (!has_entries(list, item.field->entries)) {
        list.clear();
        for (const auto& entry : item.field->entries) {
            list.addItem(to_qt(entry));
        }
    }
    if (list.currentText() != text) {
        list.setCurrentIndex(list.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        if (list.isEditable()) {
            list.setEditText(text);
        } else {
            list.setPlaceholderText(text);  // a text that is none of the entries
        }
    }
    if (list.isEditable() && list.lineEdit()->isReadOnly() != item.field->locked) {
        list.lineEdit()->setReadOnly(item.field->locked);
    }
}

void put_content(const ScreenItem& item, QWidget& widget) {
    const QString caption = to_qt(item.field->caption);
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
        put_text(*line, item);
    } else if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        put_text(*list, item);
    } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
        if (item.captioned && label->text() != caption) {
            label->setText(caption);
        }
    } else if (auto* frame = qobject_cast<QGroupBox*>(&widget)) {
        if (item.captioned && frame->title() != caption) {
            frame->setTitle(caption);
        }
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        if (item.captioned && button->text() != caption) {
            button->setText(caption);
        }
        if (button->isCheckable() && button->isChecked() != item.field->checked) {
            button->setChecked(item.field->checked);
        }
    } else if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
        if (item.page && tabs->currentIndex() != item.page()) {
            tabs->setCurrentIndex(item.page());
        }
    }
}

void put_color(platform::Color color, QWidget& widget) {
    constexpr const char* shown = "shown_gray";
    const bool gray = color == platform::Color::gray;
    const QVariant wanted = gray ? QVariant(QGuiApplication::palette().color(QPalette::Button)) : QVariant();
    if (widget.property(shown) != wanted) {
        QPalette palette;
        if (gray) {
            palette.setColor(QPalette::Base, wanted.value<QColor>());
        }
        widget.setPalette(palette);
        widget.setProperty(shown, wanted);
    }
}

}  // namespace

void put_on_screen(const ScreenItem& item, QWidget& widget) {
    put_content(item, widget);
    const platform::Field& field = *item.field;
    put_color(field.color, widget);
    if (widget.isEnabledTo(widget.parentWidget()) != field.enabled) {
        widget.setEnabled(field.enabled);
    }
    if (widget.isHidden() == field.visible) {
        widget.setVisible(field.visible);
    }
}

}  // namespace gullymark::shell
