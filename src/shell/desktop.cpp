#include "shell/desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStringList>
#include <QTime>
#include <QUrl>

#include "platform/outside.h"
#include "shell/turn.h"

namespace gullymark::shell {
namespace {

using platform::Answer;
using platform::BoxKind;

QMessageBox::Icon icon_of(BoxKind kind) {
    switch (kind) {
        case BoxKind::information:
        case BoxKind::information_question:
            return QMessageBox::Information;
        case BoxKind::warning:
        case BoxKind::warning_question:
            return QMessageBox::Warning;
        case BoxKind::plain:
            break;
    }
    return QMessageBox::NoIcon;
}

bool is_question(BoxKind kind) {
    return kind == BoxKind::warning_question || kind == BoxKind::information_question;
}

Answer show_box(const platform::Box& box) {
    show_all();
    count_modal_round();
    QMessageBox window(QApplication::activeWindow());
    window.setIcon(icon_of(box.kind));
    window.setWindowTitle(QString::fromStdString(box.title));
    window.setTextFormat(Qt::PlainText);
    window.setText(QString::fromStdString(box.text));
    if (is_question(box.kind)) {
        window.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        window.setDefaultButton(QMessageBox::No);
        window.setEscapeButton(QMessageBox::No);
        return window.exec() == QMessageBox::Yes ? Answer::yes : Answer::no;
    }
    window.setStandardButtons(QMessageBox::Ok);
    window.exec();
    return Answer::ok;
}

/// "Gullymark files (*.gmk)|*.gmk|All files|*" as the name filters "Gullymark files (*.gmk)", "All files (*)".
QStringList name_filters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section('(', 0, 0).trimmed();
        filters << name + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
    }
    return filters;
}

std::optional<std::string> choose_file(const platform::FileDialogRequest& request) {
    show_all();
    count_modal_round();
    QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(request.title));
    // The desktops' own dialogs differ in whether they ask about overwriting; the flows ask themselves.
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    dialog.setAcceptMode(request.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.must_exist && !request.saving ? QFileDialog::ExistingFile
                                                             : QFileDialog::AnyFile);
    dialog.setNameFilters(name_filters(request.filter));
    dialog.setDirectory(QString::fromStdString(request.initial_folder));
    if (!request.file_name.empty()) {
        dialog.selectFile(QString::fromStdString(request.file_name));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst()).toStdString();
}

void open_help(const std::string& path) {
    const QString file = QString::fromStdString(path);
    if (!QFileInfo(file).isFile()) {
        platform::tell("The help file is missing: " + path, BoxKind::warning);
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
        platform::tell("No help viewer is installed that opens " + path, BoxKind::warning);
    }
}

void show_wait_pointer(bool waiting) {
    const bool shown = QApplication::overrideCursor() != nullptr;
    if (waiting && !shown) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (!waiting && shown) {
        QApplication::restoreOverrideCursor();
    }
}

/// Stands before the whole program while it waits for something outside.
class DropInput : public QObject {
  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        switch (event->type()) {
            case QEvent::ShortcutOverride:
                event->accept();  // then it comes as a plain key, and not as a command
                return true;
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::Wheel:
            case QEvent::ContextMenu:
            case QEvent::InputMethod:
            case QEvent::TouchBegin:
            case QEvent::TouchUpdate:
            case QEvent::TouchEnd:
            case QEvent::DragEnter:
            case QEvent::Drop:
                return true;
            case QEvent::Close:
                event->ignore();
                return true;
            default:
                return false;
        }
    }
};

/// Input that came meanwhile is lost. Kept for later, an impatient second click would print the report again.
void keep_painting() {
    DropInput drop;
    QCoreApplication::instance()->installEventFilter(&drop);
    QCoreApplication::processEvents();
}

double time_of_day() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

}  // namespace

void attach_to_desktop() {
    platform::outside = {.show_box = show_box,
                         .choose_file = choose_file,
                         .open_help = open_help,
                         .show_wait_pointer = show_wait_pointer,
                         .keep_painting = keep_painting,
                         .beep = QApplication::beep,
                         .time_of_day = time_of_day};
}

}  // namespace gullymark::shell
