#include "shell/desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTime>
#include <QUrl>

#include "platform/outside.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"

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
    window.setWindowTitle(to_qt(box.title));
    window.setTextFormat(Qt::PlainText);
    window.setText(to_qt(box.text));
    if (is_question(box.kind)) {
        window.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        window.setDefaultButton(box.on_enter == Answer::yes ? QMessageBox::Yes : QMessageBox::No);
        window.setEscapeButton(QMessageBox::No);
        return window.exec() == QMessageBox::Yes ? Answer::yes : Answer::no;
    }
    window.setStandardButtons(QMessageBox::Ok);
    window.exec();
    return Answer::ok;
}

/// "Gullymark files (*.gmk)|*.gmk|All files|*" as the name filters "Gullymark files (*.gmk)", "All files (*)".
QStringList name_filters(const std::string& filter) {
    const QStringList parts = to_qt(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section('(', 0, 0).trimmed();
        filters << name + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
    }
    return filters;
}

/// The toolkit's dialog takes what stands between two quotes for the name of a file, and drops all else: it chooses
/// several files so. Here one is chosen, and a quote is a character of its name, but for quotes around the whole.
class OneFileDialog : public QFileDialog {
  public:
    using QFileDialog::QFileDialog;

    [[nodiscard]] QString chosen() const {
        return typed_.isEmpty() && !selectedFiles().isEmpty() ? selectedFiles().constFirst() : typed_;
    }

    void accept() override {
        QString text = line().text();
        if (!text.contains('"')) {
            QFileDialog::accept();
            return;
        }
        if (text.size() > 2 && text.startsWith('"') && text.indexOf('"', 1) == text.size() - 1) {
            text = text.mid(1, text.size() - 2);
        }
        const QFileInfo file(directory(), text);
        if (file.isDir()) {
            setDirectory(file.filePath());
        } else if (fileMode() == ExistingFile && !file.exists()) {
            QMessageBox::warning(this, windowTitle(),
                                 text + "\nFile not found.\nPlease verify the correct file name was given.");
        } else {
            typed_ = QDir::cleanPath(file.absoluteFilePath());
            done(Accepted);
        }
    }

    int exec() override {
        connect(&line(), &QLineEdit::textChanged, this, [this] { offer_quoted(); });
        button().installEventFilter(this);
        return QFileDialog::exec();
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange && watched == &button()) {
            offer_quoted();
        }
        return QFileDialog::eventFilter(watched, event);
    }

  private:
    /// The toolkit's dialog looks for a file of another name, and disables its button when there is none.
    void offer_quoted() const {
        if (line().text().contains('"') && !button().isEnabled()) {
            button().setEnabled(true);
        }
    }
    [[nodiscard]] QLineEdit& line() const { return *findChild<QLineEdit*>("fileNameEdit"); }
    [[nodiscard]] QPushButton& button() const {
        const auto kind = acceptMode() == AcceptSave ? QDialogButtonBox::Save : QDialogButtonBox::Open;
        return *findChild<QDialogButtonBox*>("buttonBox")->button(kind);
    }

    QString typed_;  // with a quote
};

std::optional<std::string> choose_file(const platform::FileDialogRequest& request) {
    show_all();
    count_modal_round();
    OneFileDialog dialog(QApplication::activeWindow(), to_qt(request.title));
    // The desktops' own dialogs differ in whether they ask about overwriting; the flows ask themselves.
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    dialog.setAcceptMode(request.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.must_exist && !request.saving ? QFileDialog::ExistingFile
                                                             : QFileDialog::AnyFile);
    dialog.setNameFilters(name_filters(request.filter));
    dialog.setDirectory(to_qt(request.initial_folder));
    if (!request.file_name.empty()) {
        dialog.selectFile(to_qt(request.file_name));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.chosen().isEmpty()) {
        return std::nullopt;
    }
    return from_qt(QDir::toNativeSeparators(dialog.chosen()));
}

void open_help(const std::string& path) {
    const QString file = to_qt(path);
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
