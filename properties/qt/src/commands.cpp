#include "properties/qt/src/commands.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace tiv::properties {
namespace {

const Command* commandOf(const std::vector<Command>& commands, const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const QKeySequence pressed(static_cast<int>(modifiers) | event.key());
    const auto hasKey = [&](const Command& command) { return command.keys.contains(pressed); };
    const auto found = std::find_if(commands.begin(), commands.end(), hasKey);
    if (found == commands.end()) return nullptr;
    return found->claim != Command::ClaimedIfPossible || found->isPossible() ? &*found : nullptr;
}

bool isNavigation(const QKeyEvent& event) {
    if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return false;
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return true;
        default:
            return false;
    }
}

bool isTyping(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    return !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace

bool isClaimed(const std::vector<Command>& commands, const QKeyEvent& event) {
    const bool selects = event.key() == Qt::Key_Space && event.modifiers() == Qt::ControlModifier;
    return selects || isNavigation(event) || isTyping(event) || commandOf(commands, event);
}

bool runCommand(const std::vector<Command>& commands, const QKeyEvent& event) {
    const Command* command = commandOf(commands, event);
    if (!command) return false;
    if (command->claim != Command::ClaimedButNotHeld || !event.isAutoRepeat()) command->run();
    return true;
}

QMenu* makeMenu(const std::vector<Command>& commands, QWidget* context) {
    auto* menu = new QMenu(context);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Command& command : commands) {
        if (command.beginsGroup) menu->addSeparator();
        QAction* entry = menu->addAction(command.text);
        entry->setEnabled(command.isPossible());
        entry->setShortcuts(command.keys);
        entry->setShortcutContext(Qt::WidgetShortcut);  // only shown: the table handles the keys
        entry->setShortcutVisibleInContextMenu(true);
        QObject::connect(entry, &QAction::triggered, context, command.run, Qt::QueuedConnection);
    }
    return menu;
}

}  // namespace tiv::properties
