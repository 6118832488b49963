#include "editor/form_user.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "editor/form/field_events.h"
#include "editor/form/field_keys.h"
#include "editor/form/inlet_form.h"
#include "editor/form/inlet_screen.h"
#include "editor/form/screen_fields.h"

namespace gullymark::roads {

using namespace editor;  // NOLINT(google-build-using-namespace): a user of the editor

namespace {

constexpr char32_t enter_key = 13;

bool takes_focus(FieldId id) {
    const Kind kind = screen_field(id).kind;
    return (kind == Kind::text || kind == Kind::list || kind == Kind::check_box || kind == Kind::command) &&
           screen_field(id).tab == frminletMDIC.screen.tab && frminletMDIC.screen.usable(id);
}

}  // namespace

FieldId field_id(const std::string& name) {
    const auto id = field_named(name);
    if (!id) {
        throw std::runtime_error("no field is called " + name);
    }
    return *id;
}

bool go_to(FieldId id) {
    if (screen_field(id).tab != frminletMDIC.screen.tab) {
        throw std::runtime_error(std::string(field_name(id)) + " stands on another page");
    }
    if (!frminletMDIC.screen.editable(id) || !takes_focus(id)) {
        return false;
    }
    if (frminletMDIC.focused == id) {
        return true;
    }
    if (!leave_focused_field() || !takes_focus(id)) {
        return false;
    }
    enter(id);
    return true;
}

bool move_on() {
    const auto from = frminletMDIC.focused;
    if (!from) {
        return true;
    }
    if (!leave(*from)) {
        return false;
    }
    for (auto id = static_cast<std::size_t>(*from) + 1; id < field_count; ++id) {
        if (takes_focus(all_fields.at(id))) {
            enter(all_fields.at(id));
            return true;
        }
    }
    return true;
}

bool strike_enter() {
    const auto from = frminletMDIC.focused;
    return from && filter_key(*from, enter_key, frminletMDIC.screen.text(*from), "") == 0 &&
           frminletMDIC.focused != from;
}

void honour_wanted_focus() {
    const auto wanted = std::exchange(frminletMDIC.wanted_focus, std::nullopt);
    if (wanted && frminletMDIC.focused != wanted && takes_focus(*wanted)) {
        enter(*wanted);
    }
    frminletMDIC.wanted_selection.reset();
}

bool type_into(FieldId id, const std::string& keys) {
    if (!go_to(id)) {
        return false;
    }
    const InletScreen& screen = frminletMDIC.screen;
    std::string selected = screen.text(id);
    if (keys.empty() && !selected.empty()) {
        edited(id, "");
    }
    for (const char key : keys) {
        const std::string whole = screen.text(id);
        if (const auto passed = filter_key(id, static_cast<unsigned char>(key), whole, selected);
            passed != 0) {
            edited(id, (selected.empty() ? whole : "") + static_cast<char>(passed));
            selected.clear();
        }
    }
    return true;
}

bool paste_into(FieldId id, const std::string& pasted) {
    if (!go_to(id)) {
        return false;
    }
    const std::string whole = frminletMDIC.screen.text(id);
    if (const std::string passed = filter_text(id, pasted, whole, whole); !passed.empty()) {
        edited(id, passed);
    }
    return true;
}

bool open_list(FieldId id) {
    if (!go_to(id)) {
        return false;
    }
    opened_list(id);
    return true;
}

bool pick_in(FieldId id, const std::string& entry) {
    if (!open_list(id)) {
        return false;
    }
    const auto& entries = frminletMDIC.screen[id].entries;
    if (std::find(entries.begin(), entries.end(), entry) == entries.end()) {
        throw std::runtime_error(std::string(field_name(id)) + " does not offer " + entry);
    }
    picked(id, entry);
    return true;
}

bool click_on(FieldId id) {
    if (!go_to(id)) {
        return false;
    }
    clicked(id);
    return true;
}

}  // namespace gullymark::roads
