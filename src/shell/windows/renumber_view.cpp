#include "shell/windows/renumber_view.h"

#include "editor/records/renumber.h"
#include "editor/state/renumber_dialog.h"
#include "shell/binding/input_filter.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "ui_renumber_view.h"

namespace gullymark::shell {

using editor::frminletmodify;

RenumberView::RenumberView(QWidget* owner) : QDialog(owner), ui_(new Ui::frminletmodify) {
    ui_->setupUi(this);
    filter_incoming_text(*ui_->newinletnumber, one_line(editor::new_number_limit));
    connect(ui_->newinletnumber, &QLineEdit::textEdited, this,
            [](const QString& text) { handle([&] { editor::edit_new_number(from_qt(text)); }); });
    connect(ui_->cmdmodaccept, &QPushButton::clicked, this, [] { handle(editor::cmdmodaccept_Click); });
    connect(ui_->cmdmodcancel, &QPushButton::clicked, this, [] { handle(editor::cmdmodcancel_Click); });
    add_view([this] { show_state(); });
}

RenumberView::~RenumberView() = default;

void RenumberView::run() {
    show_all();
    count_modal_round();
    ui_->newinletnumber->setFocus();
    if (frminletmodify.visible) {
        exec();
    }
}

void RenumberView::reject() {
    handle(editor::cmdmodcancel_Click);
}

void RenumberView::show_state() {
    const auto show_text = [](QLineEdit& line, const platform::Field& field) {
        if (const QString text = to_qt(field.text); line.text() != text) {
            line.setText(text);
        }
    };
    show_text(*ui_->thisinletnumber, frminletmodify.thisinletnumber);
    show_text(*ui_->newinletnumber, frminletmodify.newinletnumber);
    if (!frminletmodify.visible && isVisible()) {
        done(QDialog::Accepted);
    }
}

}  // namespace gullymark::shell
