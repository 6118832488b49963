#include "shell/windows/record_view.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "editor/windows/inlet_view.h"
#include "shell/binding/binder.h"
#include "shell/binding/copy_texts.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/small_screen.h"
#include "shell/binding/turn.h"
#include "shell/windows/inlet_items.h"
#include "shell/windows/results_page.h"
#include "shell/windows/section_picture.h"
#include "ui_inlet_form_view.h"

namespace gullymark::shell {

using editor::frmviewinlet;

RecordView::RecordView() : form_(new Ui::frminletMDIC) {
    form_->setupUi(this);
    scroll_pages(*form_->SSTab1);
    fit_results_page(*this);
    order_tabs(*this);
    form_->fixed_worked_calculation->hide();  // of the inlet on the form alone
    setObjectName("frmviewinlet");
    resize(sizeHint());
    new Binder(*this, record_view_items());  // owned by the window
    add_copying(*this, frmviewinlet.screen);
    form_->fixed_section_picture->draw(editor::viewed_inlet);
    form_->fixed_results_picture->draw(editor::viewed_inlet);
    add_view([this] { show_pictures(); });
    add_view([this] { show_state(); });
}

RecordView::~RecordView() = default;

void RecordView::show_pictures() {
    const section::Water water = water_.look(editor::viewed_inlet);
    form_->fixed_section_picture->follow(water);
    form_->fixed_results_picture->follow(water);
}

void RecordView::show_state() {
    setWindowTitle(to_qt(frmviewinlet.caption));
    if (isVisible() != frmviewinlet.visible) {
        setVisible(frmviewinlet.visible);
    }
    come_to_front(*this, frmviewinlet.shows, shows_shown_);
}

void RecordView::closeEvent(QCloseEvent* event) {
    event->ignore();
    handle(editor::unload_inlet_view);
}

void RecordView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close)) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace gullymark::shell
