#pragma once

#include <string>
#include <vector>

#include "engine/inlet_record.h"
#include "shell/binding/screen_item.h"

/// The fields of the inlet design form and of the record view as the binder takes them.
namespace gullymark::shell {

/// All fields, with every event.
std::vector<ScreenItem> design_form_items();

/// The same fields of the record view, in which only the pages turn.
std::vector<ScreenItem> record_view_items();

/// The Tab key goes through the fields in the order of their list.
void order_tabs(QWidget& form);

/// Tells each field's meaning and unit as its tool tip.
void put_tool_tips(QWidget& form);

/// What stands beside the field of a column on a form, with the side that its frame names; empty where nothing does.
std::string caption_of(const QWidget& form, engine::Column column);

}  // namespace gullymark::shell
