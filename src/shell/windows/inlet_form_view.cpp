#include "shell/windows/inlet_form_view.h"

#include <utility>

#include "editor/form/inlet_form.h"
#include "editor/form/screen_fields.h"
#include "editor/form/worked_calculation.h"
#include "engine/unit_constants.h"
#include "shell/binding/copy_texts.h"
#include "shell/binding/small_screen.h"
#include "shell/binding/turn.h"
#include "shell/windows/inlet_items.h"
#include "shell/windows/results_page.h"
#include "shell/windows/section_picture.h"
#include "ui_inlet_form_view.h"

namespace gullymark::shell {
using editor::frminletMDIC;

InletFormView::InletFormView(QWidget* parent) : QWidget(parent), ui_(new Ui::frminletMDIC) {
    ui_->setupUi(this);
    scroll_pages(*ui_->SSTab1);
    fit_results_page(*this);
    order_tabs(*this);
    // No field: it has no place in the fixed order of the fields and their events, and stands behind them.
    setTabOrder(ui_->txtGutterSpread, ui_->fixed_worked_calculation);
    connect(ui_->fixed_worked_calculation, &QPushButton::clicked, this,
            [] { handle(editor::show_worked_calculation); });
}

InletFormView::~InletFormView() = default;

void InletFormView::bind() {
    add_view([this] { carry_out_wishes(); });  // before the binder, which then moves the focus
    binder_ = new Binder(*this, design_form_items());
    add_view([this] { follow_units(); });
    add_view([this] { ui_->fixed_worked_calculation->setEnabled(editor::has_worked_calculation()); });
    ui_->fixed_section_picture->draw(engine::open_inlet);
    ui_->fixed_results_picture->draw(engine::open_inlet);
    add_view([this] { show_pictures(); });
    add_copying(*this, frminletMDIC.screen);
}

void InletFormView::show_pictures() {
    const section::Water water = water_.look(engine::open_inlet);
    ui_->fixed_section_picture->follow(water);
    ui_->fixed_results_picture->follow(water);
}

/// The tips tell units.
void InletFormView::follow_units() {
    if (tips_in_ != engine::UnitSystem) {
        tips_in_ = engine::UnitSystem;
        put_tool_tips(*this);
    }
}

void InletFormView::carry_out_wishes() {
    if (std::exchange(begun_, frminletMDIC.begun) != frminletMDIC.begun) {
        binder_->focus().forget_visits();
    }
    if (const auto wanted = std::exchange(frminletMDIC.wanted_focus, std::nullopt)) {
        binder_->focus().give_to(std::string(editor::field_name(*wanted)));
    }
    if (const auto wanted = std::exchange(frminletMDIC.wanted_selection, std::nullopt)) {
        binder_->focus().select_all(std::string(editor::field_name(*wanted)));
    }
}

}  // namespace gullymark::shell
