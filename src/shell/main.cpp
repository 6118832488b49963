#include <clocale>

#include <QApplication>

#include "platform/files.h"
#include "shell/binding/qt_text.h"
#include "shell/binding/turn.h"
#include "shell/start.h"
#include "store/start.h"

namespace shell = gullymark::shell;

int main(int argc, char** argv) {
    // There is no command line: not even the toolkit's own options.
    argc = argc == 0 ? 0 : 1;
    const QApplication application(argc, argv);
    // The toolkit has set the locale of the desktop; numbers stay as they are written here.
    static_cast<void>(std::setlocale(LC_NUMERIC, "C"));
    QApplication::setApplicationName("GullymarkAL");
    QApplication::setApplicationDisplayName({});
    gullymark::platform::set_program_folder(shell::from_qt(QApplication::applicationDirPath()));
    shell::build_windows();
    shell::handle(gullymark::store::tarnelbrookmain);
    return QApplication::exec();
}
