#include "shell/menus.h"

#include <algorithm>
#include <array>

#include <QIcon>

namespace gullymark::shell {
namespace {

struct CommandKeys {
    std::string_view command;
    QKeySequence::StandardKey keys;
};

constexpr std::array<CommandKeys, 8> command_keys{{
    {"mnucreateProj", QKeySequence::New},
    {"mnuopenProj", QKeySequence::Open},
    {"mnucloseProj", QKeySequence::Close},
    {"mnuExit", QKeySequence::Quit},
    {"mnusubHelp", QKeySequence::HelpContents},
    {"mnuprojsave", QKeySequence::Save},
    {"mnuprojexit", QKeySequence::Close},
    {"mnuprojsubhelp", QKeySequence::HelpContents},
}};

}  // namespace

QKeySequence keys_of(std::string_view command) {
    const auto found = std::ranges::find(command_keys, command, &CommandKeys::command);
    return found == command_keys.end() ? QKeySequence() : QKeySequence(found->keys);
}

void add_tool(QToolBar& bar, const char* command, const QString& icon) {
    auto* action = bar.window()->findChild<QAction*>(command);
    action->setIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(icon)));
    action->setIconVisibleInMenu(false);
    bar.addAction(action);
}

}  // namespace gullymark::shell
