#include "shell/binding/copy_texts.h"

#include <optional>
#include <string>

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>

#include "editor/form/inlet_screen.h"
#include "editor/form/screen_fields.h"
#include "engine/units.h"
#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

using editor::FieldId;
using editor::Kind;
using editor::screen_field;

void copy(const std::string& text) {
    QGuiApplication::clipboard()->setText(to_qt(text));
}

bool has_text(FieldId id) {
    const Kind kind = screen_field(id).kind;
    return kind == Kind::text || kind == Kind::list;
}

/// The field of which `widget` is a part, or which it labels.
std::optional<FieldId> field_of(const QWidget* widget) {
    if (const auto* label = qobject_cast<const QLabel*>(widget);
        label != nullptr && label->buddy() != nullptr) {
        widget = label->buddy();
    }
    for (; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
        const auto id = editor::field_named(from_qt(widget->objectName()));
        if (id && has_text(*id)) {
            return id;
        }
    }
    return std::nullopt;
}

std::string page_as_text(const editor::InletScreen& screen) {
    std::string lines;
    for (const FieldId id : editor::all_fields) {
        const auto& field = screen_field(id);
        const bool shown =
            screen[id].visible && (!field.frame || screen[*field.frame].visible) && field.tab == screen.tab;
        if (shown && has_text(id) && field.column) {
            lines += std::string(engine::column_meaning(*field.column)) + '\t' + screen.text(id) + '\t' +
                     std::string(engine::unit_text(engine::column_unit(*field.column))) + '\n';
        }
    }
    return lines;
}

class Copier : public QObject {
  public:
    Copier(QWidget& form, const editor::InletScreen& screen) : QObject(&form), form_(form), screen_(screen) {
        copy_page_ = new QAction("Copy &Page", &form);
        copy_page_->setObjectName("fixed_copy_page");
        copy_page_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
        connect(copy_page_, &QAction::triggered, this, [this] { copy(page_as_text(screen_)); });
        form.addAction(copy_page_);
        form.installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != &form_ || event->type() != QEvent::ContextMenu) {
            return false;
        }
        const auto& wish = static_cast<const QContextMenuEvent&>(*event);
        show_menu(field_of(form_.childAt(wish.pos())), wish.globalPos());
        return true;
    }

  private:
    void show_menu(std::optional<FieldId> field, QPoint at) {
        auto* menu = new QMenu(&form_);
        menu->setObjectName("fixed_copy_menu");
        menu->setAttribute(Qt::WA_DeleteOnClose);
        if (field) {
            menu->addAction("&Copy", this, [this, id = *field] { copy(screen_.text(id)); });
        }
        menu->addAction(copy_page_);
        menu->popup(at);
    }

    QWidget& form_;
    const editor::InletScreen& screen_;
    QAction* copy_page_ = nullptr;
};

}  // namespace

void add_copying(QWidget& form, const editor::InletScreen& screen) {
    new Copier(form, screen);  // owned by the form
}

}  // namespace gullymark::shell
