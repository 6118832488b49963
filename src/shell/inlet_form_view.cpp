#include "shell/inlet_form_view.h"

#include <utility>

#include "editor/inlet_form.h"
#include "shell/turn.h"
#include "ui_inlet_form_view.h"

namespace gullymark::shell {
namespace {

using editor::FieldId;
using editor::frminletMDIC;
using editor::Kind;

bool has_text(Kind kind) {
    return kind == Kind::text || kind == Kind::list;
}

bool takes_focus(Kind kind) {
    return has_text(kind) || kind == Kind::check_box || kind == Kind::command;
}

/// The frames around the two sides change their captions; the others keep what is drawn.
bool is_captioned(FieldId id) {
    const Kind kind = editor::screen_field(id).kind;
    return kind == Kind::label || kind == Kind::unit_labels || id == FieldId::discharge1_frame ||
           id == FieldId::discharge2_frame;
}

InputFilter filter_of(FieldId id) {
    if (!editor::has_rule(id, editor::numeric_keys) && !editor::has_rule(id, editor::combo_keys)) {
        return {};
    }
    return {.key = [id](char32_t key, std::string_view whole,
                        std::string_view selected) { return editor::filter_key(id, key, whole, selected); },
            .text =
                [id](std::string_view incoming, std::string_view whole, std::string_view selected) {
                    return editor::filter_text(id, incoming, whole, selected);
                }};
}

ScreenItem item_of(FieldId id) {
    const editor::ScreenField& drawn = editor::screen_field(id);
    ScreenItem item{.name = std::string(editor::field_name(id)),
                    .field = &frminletMDIC.screen[id],
                    .captioned = is_captioned(id),
                    .limit = drawn.limit,
                    .filter = filter_of(id)};
    if (has_text(drawn.kind)) {
        item.text = [id] { return frminletMDIC.screen.text(id); };
        item.edited = [id](const std::string& text) { editor::edited(id, text); };
    }
    if (drawn.kind == Kind::list) {
        item.picked = [id](const std::string& entry) { editor::picked(id, entry); };
        item.opened = [id] { editor::opened_list(id); };
    }
    if (drawn.kind == Kind::check_box || drawn.kind == Kind::command) {
        item.clicked = [id] { editor::clicked(id); };
    }
    if (drawn.kind == Kind::tabs) {
        item.page = [] { return frminletMDIC.screen.tab; };
        item.turned = editor::tab_clicked;
    }
    if (takes_focus(drawn.kind)) {
        item.entered = [id] { editor::enter(id); };
        item.leave = [id] { return editor::leave(id); };
        item.is_entered = [id] { return frminletMDIC.focused == id; };
    }
    return item;
}

}  // namespace

InletFormView::InletFormView(QWidget* parent) : QWidget(parent), ui_(new Ui::frminletMDIC) {
    ui_->setupUi(this);
}

InletFormView::~InletFormView() = default;

void InletFormView::bind() {
    std::vector<ScreenItem> items;
    for (const FieldId id : editor::all_fields) {
        items.push_back(item_of(id));
    }
    add_view([this] { carry_out_wishes(); });
    binder_ = new Binder(*this, std::move(items));
}

void InletFormView::carry_out_wishes() {
    if (const auto wanted = std::exchange(frminletMDIC.wanted_focus, std::nullopt)) {
        binder_->focus(std::string(editor::field_name(*wanted)));
    }
    if (const auto wanted = std::exchange(frminletMDIC.wanted_selection, std::nullopt)) {
        binder_->select_all(std::string(editor::field_name(*wanted)));
    }
}

}  // namespace gullymark::shell
