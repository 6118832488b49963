#include "shell/binding/menus.h"

#include <algorithm>
#include <array>

#include "shell/binding/tool_icon.h"

namespace gullymark::shell {
namespace {

struct CommandKeys {
    std::string_view command;
    Qt::Key key;
    Qt::KeyboardModifier modifier = Qt::ControlModifier;
};

// Written out: the toolkit's standard keys are not the same on every desktop.
constexpr std::array command_keys{
    CommandKeys{"mnucreateProj", Qt::Key_N},
    CommandKeys{"mnuopenProj", Qt::Key_O},
    CommandKeys{"mnucloseProj", Qt::Key_W},
    CommandKeys{"mnuExit", Qt::Key_Q},
    CommandKeys{"mnusubHelp", Qt::Key_F1, Qt::NoModifier},
    CommandKeys{"mnuprojsave", Qt::Key_S},
    CommandKeys{"mnuprojexit", Qt::Key_Q},
    CommandKeys{"mnuprojsubhelp", Qt::Key_F1, Qt::NoModifier},
    CommandKeys{"mnuAddinlet", Qt::Key_N},
    CommandKeys{"mnuEditinlet", Qt::Key_E},
    CommandKeys{"mnuSaveinlet", Qt::Key_S},
    CommandKeys{"mnuflexrefresh", Qt::Key_F5, Qt::NoModifier},
    CommandKeys{"mnuviewInlets", Qt::Key_L},
    CommandKeys{"mnuflexcopyinlet", Qt::Key_D},
    CommandKeys{"mnuflexmodifyinlet", Qt::Key_F2, Qt::NoModifier},
    CommandKeys{"mnuflexdeleteinlet", Qt::Key_Delete},
    CommandKeys{"mnuflex_inlet_report", Qt::Key_P},
    CommandKeys{"mnuInlethelp", Qt::Key_F1, Qt::NoModifier},
    CommandKeys{"mnuflexexit", Qt::Key_Q},
    CommandKeys{"mnuflexhelp", Qt::Key_F1, Qt::NoModifier},
};

}  // namespace

QKeySequence keys_of(std::string_view command) {
    const auto found = std::ranges::find(command_keys, command, &CommandKeys::command);
    return found == command_keys.end() ? QKeySequence() : QKeySequence(found->modifier | found->key);
}

void add_tool(QToolBar& bar, const char* command, const QString& icon) {
    auto* action = bar.window()->findChild<QAction*>(command);
    action->setIcon(tool_icon(icon));
    action->setIconVisibleInMenu(false);
    bar.addAction(action);
}

}  // namespace gullymark::shell
