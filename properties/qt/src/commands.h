// The commands of an inspector: one table, from which its keys and its context menu are made.
//
// Keys of the table are claimed when Qt asks whether they are a shortcut of the host (ShortcutOverride): those
// of the commands; the arrows, Home, End, PageUp and PageDown, alone or with Shift; Ctrl+Space; and every
// character without Ctrl, Alt or Meta, because typing finds rows. All others (Ctrl+S, F9, Tab) are the host's.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <functional>
#include <vector>

class QKeyEvent;
class QMenu;
class QWidget;

namespace tiv::properties {

struct Command {
    enum Keys {
        Claimed,            // also while the command is not possible
        ClaimedIfPossible,  // otherwise they are the host's
        ClaimedButNotHeld,  // claimed; a key that is held down acts once
    };

    QString text;  // in the menu
    QList<QKeySequence> keys;
    Keys claim;
    std::function<bool()> isPossible;
    std::function<void()> run;  // does nothing, or says why, when it is not possible
    bool beginsGroup = false;   // of the menu
};

// Whether the key is the table's.
bool isClaimed(const std::vector<Command>& commands, const QKeyEvent& event);
// Runs the command of the key. False if the key has none, or is left to the host.
bool runCommand(const std::vector<Command>& commands, const QKeyEvent& event);
// All commands, as they are possible now. `context` is the parent of the menu, which deletes itself when it is
// closed. A command runs after the menu has returned, if `context` still exists.
QMenu* makeMenu(const std::vector<Command>& commands, QWidget* context);

}  // namespace tiv::properties
