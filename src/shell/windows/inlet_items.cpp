#include "shell/windows/inlet_items.h"

#include <QGroupBox>
#include <QLabel>

#include "editor/form/field_events.h"
#include "editor/form/field_keys.h"
#include "editor/form/inlet_form.h"
#include "editor/form/inlet_screen.h"
#include "editor/form/screen_fields.h"
#include "editor/windows/inlet_view.h"
#include "engine/units.h"
#include "shell/binding/qt_text.h"

namespace gullymark::shell {
namespace {

using editor::FieldId;
using editor::Kind;
using editor::screen_field;

/// What is shown of a field on `screen`.
ScreenItem shown_item(editor::InletScreen& screen, FieldId id) {
    const auto& field = screen_field(id);
    const bool names_the_side = id == FieldId::discharge1_frame || id == FieldId::discharge2_frame;
    ScreenItem item{
        .name = std::string(editor::field_name(id)),
        .field = &screen[id],
        .captioned = field.kind == Kind::label || field.kind == Kind::unit_labels || names_the_side,
        .limit = field.limit};
    if (field.kind == Kind::text || field.kind == Kind::list) {
        item.text = [&screen, id] { return screen.text(id); };
    }
    if (field.kind == Kind::tabs) {
        item.page = [&screen] { return screen.tab; };
    }
    return item;
}

void add_focus(ScreenItem& item, FieldId id) {
    item.entered = [id] { editor::enter(id); };
    item.leave = [id] { return editor::leave(id); };
    item.is_entered = [id] { return editor::frminletMDIC.focused == id; };
}

/// What the user does in a field that can be typed in.
void add_typing(ScreenItem& item, FieldId id) {
    item.edited = [id](const std::string& text) { editor::edited(id, text); };
    add_focus(item, id);
    if (editor::has_rule(id, editor::numeric_keys) || editor::has_rule(id, editor::combo_keys)) {
        item.filter = {
            .key = [id](char32_t key, std::string_view whole,
                        std::string_view selected) { return editor::filter_key(id, key, whole, selected); },
            .text =
                [id](std::string_view incoming, std::string_view whole, std::string_view selected) {
                    return editor::filter_text(id, incoming, whole, selected);
                }};
    }
}

void add_events(ScreenItem& item, FieldId id) {
    switch (screen_field(id).kind) {
        case Kind::list:
            item.picked = [id](const std::string& entry) { editor::picked(id, entry); };
            item.opened = [id] { editor::opened_list(id); };
            add_typing(item, id);
            break;
        case Kind::text:
            add_typing(item, id);
            break;
        case Kind::check_box:
        case Kind::command:
            item.clicked = [id] { editor::clicked(id); };
            add_focus(item, id);
            break;
        case Kind::tabs:
            item.turned = [](int page) { editor::tab_clicked(page); };
            break;
        case Kind::label:
        case Kind::unit_labels:
        case Kind::frame:
            break;
    }
}

QWidget* widget_of(const QWidget& form, FieldId id) {
    return form.findChild<QWidget*>(to_qt(editor::field_name(id)));
}

}  // namespace

std::vector<ScreenItem> design_form_items() {
    std::vector<ScreenItem> items;
    for (const FieldId id : editor::all_fields) {
        items.push_back(shown_item(editor::frminletMDIC.screen, id));
        add_events(items.back(), id);
    }
    return items;
}

std::vector<ScreenItem> record_view_items() {
    std::vector<ScreenItem> items;
    for (const FieldId id : editor::all_fields) {
        items.push_back(shown_item(editor::frmviewinlet.screen, id));
        if (screen_field(id).kind == Kind::tabs) {
            items.back().turned = [](int page) { editor::view_tab_clicked(page); };
        }
    }
    return items;
}

void order_tabs(QWidget& form) {
    QWidget* before = nullptr;
    for (const FieldId id : editor::all_fields) {
        QWidget* widget = widget_of(form, id);
        if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0) {
            continue;
        }
        if (before != nullptr) {
            QWidget::setTabOrder(before, widget);
        }
        before = widget;
    }
}

std::string caption_of(const QWidget& form, engine::Column column) {
    const FieldId id = editor::field_of(column);
    const QWidget* const field = widget_of(form, id);
    for (const auto* label : form.findChildren<QLabel*>()) {
        if (field == nullptr || label->buddy() != field) {
            continue;
        }
        const auto frame = screen_field(id).frame;
        const bool has_side = frame == FieldId::discharge1_frame || frame == FieldId::discharge2_frame;
        const auto* const side = has_side ? qobject_cast<QGroupBox*>(widget_of(form, *frame)) : nullptr;
        const QString caption = label->text().remove('&').simplified();
        return from_qt(side == nullptr || side->title().isEmpty() ? caption : side->title() + ", " + caption);
    }
    return {};
}

void put_tool_tips(QWidget& form) {
    for (const FieldId id : editor::all_fields) {
        const auto column = screen_field(id).column;
        auto* widget = widget_of(form, id);
        if (!column || widget == nullptr) {
            continue;
        }
        std::string tip(engine::column_meaning(*column));
        if (const auto unit = engine::unit_text(engine::column_unit(*column)); !unit.empty()) {
            tip += " (" + std::string(unit) + ")";
        }
        if (const QString text = to_qt(tip); widget->toolTip() != text) {
            widget->setToolTip(text);
        }
    }
}

}  // namespace gullymark::shell
