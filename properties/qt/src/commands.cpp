#include "properties/qt/src/commands.h"

#include "properties/definitions/paths.h"
#include "properties/qt/src/announcer.h"
#include "properties/qt/src/clipboard.h"
#include "properties/qt/src/inspector_host.h"
#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"
#include "properties/qt/src/shown_rows.h"

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QList>
#include <QMenu>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tiv::properties {
namespace {

struct Command {
    enum Keys {
        Claimed,            // also while the command is not possible
        ClaimedIfPossible,  // otherwise left to the host
        ClaimedButNotHeld,  // claimed; a key that is held down runs the command once
    };

    QString text;  // in the menu
    QList<QKeySequence> keys;
    Keys claim;
    std::function<bool()> isPossible;
    std::function<void()> run;  // when it is not possible: does nothing, or shows why
    bool beginsGroup = false;   // of the menu
};

QList<QKeySequence> redoKeys() {
    auto keys = QKeySequence::keyBindings(QKeySequence::Redo);
    const QKeySequence ofWindows(QStringLiteral("Ctrl+Y"));
    if (!keys.contains(ofWindows)) keys << ofWindows;
    return keys;
}

QList<QKeySequence> keys(const QStringList& texts) {
    QList<QKeySequence> result;
    for (const QString& text : texts) result << QKeySequence(text);
    return result;
}

// The menu shows the first key of each.
std::vector<Command> makeCommands(const CommandParts& p) {
    const auto always = [] { return true; };
    const auto hasTargets = [p] { return p.editor->isEditable() && !p.shown->targets().empty(); };
    const auto hasChanged = [p] { return p.editor->isEditable() && !p.shown->changed().empty(); };
    const auto gesture = [p](auto action) {
        return [p, action] {
            p.announcer->clear();
            action();
        };
    };
    const QString resetAll = p.rows->text("Reset all shown (%1)");
    std::vector<Command> list{
        {p.rows->text("Choose value"),
            keys({"Return", "Enter", "F2", "F4", "Space", "Alt+Down", "Alt+Up"}),
            Command::ClaimedButNotHeld,
            hasTargets,
            [p] { p.view->editRow(p.view->currentIndex()); }},
        {p.rows->text("Reset to default"), keys({"Del"}), Command::Claimed, hasTargets, gesture([p] {
             p.editor->reset(p.shown->targets());
         })},
        {resetAll.arg(p.shown->changed().size()), {}, Command::Claimed, hasChanged, gesture([p] {
             p.editor->reset(p.shown->changed());
         })},
        {p.rows->text("Undo"),
            QKeySequence::keyBindings(QKeySequence::Undo),
            Command::ClaimedIfPossible,
            [p] { return p.editor->canUndo(); },
            gesture([p] { p.editor->undo(); }),
            true},
        {p.rows->text("Redo"),
            redoKeys(),
            Command::ClaimedIfPossible,
            [p] { return p.editor->canRedo(); },
            gesture([p] { p.editor->redo(); })},
        {p.rows->text("Copy"),
            QKeySequence::keyBindings(QKeySequence::Copy),
            Command::Claimed,
            [p] { return !p.shown->targets().empty(); },
            [p] { p.clipboard->copyRows(); },
            true},
    };
    if (p.host->copySettings)
        list.push_back({p.rows->text("Copy settings"),
            {},
            Command::Claimed,
            [p] { return p.editor->isEditable(); },
            [p] { p.clipboard->copySettings(); }});
    list.push_back({p.rows->text("Paste"),
        QKeySequence::keyBindings(QKeySequence::Paste),
        Command::Claimed,
        [p] { return p.editor->isEditable(); },
        gesture([p] { p.clipboard->paste(); })});
    list.push_back({p.rows->text("Select all"),
        QKeySequence::keyBindings(QKeySequence::SelectAll),
        Command::Claimed,
        always,
        [p] { p.view->selectAll(); },
        true});
    list.push_back({p.rows->text("Filter"),
        QKeySequence::keyBindings(QKeySequence::Find),
        Command::Claimed,
        always,
        [p] { p.shown->openFilter(); }});
    list.push_back({p.rows->text("Hide filter"),
        keys({"Esc"}),
        Command::ClaimedIfPossible,
        [p] { return p.shown->isFilterOpen(); },
        [p] { p.shown->closeFilter(); }});
    return list;
}

std::optional<Command> commandOf(const CommandParts& parts, const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const QKeySequence pressed(static_cast<int>(modifiers) | event.key());
    const std::vector<Command> commands = makeCommands(parts);
    const auto hasKey = [&](const Command& command) { return command.keys.contains(pressed); };
    const auto found = std::find_if(commands.begin(), commands.end(), hasKey);
    if (found == commands.end()) return std::nullopt;
    if (found->claim != Command::ClaimedIfPossible || found->isPossible()) return *found;
    return std::nullopt;
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

// The menu has all values that the selected rows offer.
void addValueMenu(QMenu& menu, const CommandParts& p, QWidget* context) {
    auto* values = new QMenu(p.host->setTo(), &menu);
    menu.insertMenu(menu.actions().at(1), values);  // behind the command that opens the list
    std::vector<NamedValue> offered;
    for (const auto& property : p.shown->targets()) {
        const auto* entries = property->configuration.get<NamedValues>(path::editorEntries);
        if (!entries) continue;
        for (const NamedValue& entry : **entries) {
            const auto same = [&](const NamedValue& known) { return known.value == entry.value; };
            if (std::none_of(offered.begin(), offered.end(), same)) offered.push_back(entry);
        }
    }
    for (const NamedValue& entry : offered) {
        const auto set = [p, value = entry.value] {
            p.announcer->clear();
            p.editor->set(p.shown->targets(), value);
        };
        QObject::connect(
            values->addAction(entry.text), &QAction::triggered, context, set, Qt::QueuedConnection);
    }
    values->setEnabled(p.editor->isEditable() && !offered.empty());
}

}  // namespace

bool isClaimed(const CommandParts& parts, const QKeyEvent& event) {
    const bool selects = event.key() == Qt::Key_Space && event.modifiers() == Qt::ControlModifier;
    return selects || isNavigation(event) || isTyping(event) || commandOf(parts, event);
}

bool runCommand(const CommandParts& parts, const QKeyEvent& event) {
    const std::optional<Command> command = commandOf(parts, event);
    if (!command) return false;
    if (command->claim != Command::ClaimedButNotHeld || !event.isAutoRepeat()) command->run();
    return true;
}

QMenu* makeMenu(const CommandParts& parts, QWidget* context) {
    auto* menu = new QMenu(context);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Command& command : makeCommands(parts)) {
        if (command.beginsGroup) menu->addSeparator();
        QAction* entry = menu->addAction(command.text);
        entry->setEnabled(command.isPossible());
        entry->setShortcuts(command.keys);
        entry->setShortcutContext(Qt::WidgetShortcut);  // only shown: the table handles the keys
        entry->setShortcutVisibleInContextMenu(true);
        QObject::connect(entry, &QAction::triggered, context, command.run, Qt::QueuedConnection);
    }
    if (parts.host->setTo) addValueMenu(*menu, parts, context);
    return menu;
}

}  // namespace tiv::properties
