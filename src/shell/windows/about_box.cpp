#include "shell/windows/about_box.h"

#include <QApplication>
#include <QDialog>
#include <QIcon>

#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "store/help.h"
#include "ui_about_box.h"

namespace gullymark::shell {

void run_about_box() {
    show_all();
    count_modal_round();
    QDialog dialog(QApplication::activeWindow());
    Ui::frmAbout ui;
    ui.setupUi(&dialog);
    ui.fixed_icon->setPixmap(QIcon(QStringLiteral(":/icons/application.svg")).pixmap(72));
    ui.fixed_program->setText(to_qt(store::about_text));
    ui.fixed_family->setText(to_qt(store::product_family));
    QObject::connect(ui.cmdOK, &QPushButton::clicked, &dialog, &QDialog::accept);
    dialog.layout()->setSizeConstraint(QLayout::SetFixedSize);
    dialog.exec();
}

}  // namespace gullymark::shell
