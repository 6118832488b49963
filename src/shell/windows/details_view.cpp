#include "shell/windows/details_view.h"

#include <QCloseEvent>

#include "shell/binding/menus.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "store/project_details.h"
#include "ui_details_view.h"

namespace gullymark::shell {
namespace {

using store::frmProject;

std::vector<ScreenItem> items() {
    std::vector<ScreenItem> items;
    for (const auto& field : store::details_fields) {
        items.push_back({.name = std::string(field.name),
                         .field = &(frmProject.*field.field),
                         .limit = field.limit,
                         .edited = [&field](const std::string& text) { edit_details_field(field, text); }});
    }
    return items;
}

}  // namespace

DetailsView::DetailsView(QWidget* owner) : QMainWindow(owner, Qt::Dialog), ui_(new Ui::frmProject) {
    ui_->setupUi(this);
    setWindowTitle(to_qt(store::details_title));
    ui_->fixed_details_frame->setTitle(to_qt(store::details_frame_caption));
    for (const auto& field : store::details_fields) {
        findChild<QLabel*>("fixed_label_" + to_qt(field.name))->setText(to_qt(field.label));
    }
    build_menu<store::ProjectDetails>(*this, store::details_menu, frmProject);
    add_tool(*ui_->fixed_tool_bar, "mnuprojsave", "save");
    add_tool(*ui_->fixed_tool_bar, "mnuprojexit", "exit");
    binder_ = new Binder(*this, items());
    add_view([this] { show_state(); });
}

DetailsView::~DetailsView() = default;

void DetailsView::run() {
    show_all();
    count_modal_round();
    if (frmProject.visible) {
        waiting_.exec();
    }
}

void DetailsView::show_state() {
    if (frmProject.visible && !isVisible()) {
        appear();
    } else if (!frmProject.visible) {
        hide();
        waiting_.quit();
    }
}

void DetailsView::appear() {
    adjustSize();
    if (const QWidget* owner = parentWidget(); owner != nullptr && owner->isVisible()) {
        move(owner->frameGeometry().center() - rect().center());
    }
    show();
    (ui_->project_id->isEnabled() ? ui_->project_id : ui_->project_name)->setFocus();
}

void DetailsView::closeEvent(QCloseEvent* event) {
    event->ignore();
    handle(store::mnuprojexit_Click);
}

}  // namespace gullymark::shell
