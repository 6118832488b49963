#include "shell/review/start_review.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QIcon>
#include <QProcess>
#include <QSettings>
#include <QTimer>

#include "platform/files.h"
#include "platform/outside.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/readable_palette.h"
#include "shell/binding/small_screen.h"
#include "shell/binding/turn.h"
#include "shell/desktop.h"
#include "shell/review/book.h"
#include "shell/review/review_window.h"

/// The toolkit's macro works outside of every namespace only.
static void load_review_resources() {
    Q_INIT_RESOURCE(gullymark);
}

namespace gullymark::shell {
namespace {

/// Where the toolkit finds no display it would end the program with many lines and a signal.
void tell_missing_display(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/) {
    constexpr int failed = 2;
    if (type == QtFatalMsg) {
        static_cast<void>(
            std::fputs("gullymark-review: there is no display for a window; --check needs none\n", stderr));
        std::_Exit(failed);
    }
}

/// What the toolkit says of the desktop is nothing to a script.
void keep_silent(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

}  // namespace

void prepare_review() {
    load_review_resources();
    // No settings are kept; the toolkit's file dialog would keep its history.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QProcess::nullDevice());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/review.svg")));
    keep_texts_readable();
    keep_windows_on_screen();
    attach_to_desktop();
}

void run_review(int argc, char** argv, const std::string& file) {
    argc = argc == 0 ? 0 : 1;
    const QtMessageHandler usual = qInstallMessageHandler(tell_missing_display);
    const QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    // The toolkit has set the locale of the desktop; numbers stay as they are written here.
    static_cast<void>(std::setlocale(LC_NUMERIC, "C"));
    QApplication::setApplicationName("gullymark-review");
    QApplication::setApplicationDisplayName({});
    QApplication::setDesktopFileName("gullymark-review");
    platform::set_program_folder(from_qt(QApplication::applicationDirPath()));
    prepare_review();
    ReviewWindow window;
    window.show();
    if (!file.empty()) {
        // The window is on the screen before a box or a long read stands before it.
        QTimer::singleShot(0, &window, [&window, &file] { handle([&window, &file] { window.open(file); }); });
    }
    QApplication::exec();
}

std::string make_book(int argc, char** argv, const review::Reviewed& reviewed, const std::string& file) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(keep_silent);
    argc = argc == 0 ? 0 : 1;
    const QGuiApplication application(argc, argv);
    static_cast<void>(std::setlocale(LC_NUMERIC, "C"));
    const QByteArray book =
        book_pdf({.reviewed = reviewed, .file = to_qt(file), .today = platform::today()}).value();
    return {book.constData(), static_cast<std::size_t>(book.size())};
}

}  // namespace gullymark::shell
