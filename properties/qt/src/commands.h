// The commands of an inspector: one table, from which its keys and its context menu are made.
//
// The table accepts these keys at ShortcutOverride, so that no shortcut of the host takes them: those of the
// commands; the arrows, Home, End, PageUp and PageDown, alone or with Shift; Ctrl+Space; and every
// character without Ctrl, Alt or Meta, because typing finds rows. All others (Ctrl+S, F9, Tab) are left to the host.
#pragma once

class QKeyEvent;
class QMenu;
class QWidget;

namespace tiv::properties {

class Announcer;
class PropertyView;
class RecordEditor;
class RecordItemModel;
class ShownRows;
struct Clipboard;
struct InspectorHost;

// What the commands act on. The inspector owns all parts.
struct CommandParts {
    const InspectorHost* host;
    RecordEditor* editor;
    const RecordItemModel* rows;
    PropertyView* view;
    ShownRows* shown;
    const Clipboard* clipboard;
    Announcer* announcer;
};

// Whether the table claims the key.
bool isClaimed(const CommandParts& parts, const QKeyEvent& event);
// Runs the command of the key. False if the key has none, or is left to the host.
bool runCommand(const CommandParts& parts, const QKeyEvent& event);
// All commands; those that are not possible now are disabled. `context` is the parent of the menu, which deletes
// itself when it is closed. A command runs after the menu has returned, if `context` still exists.
QMenu* makeMenu(const CommandParts& parts, QWidget* context);

}  // namespace tiv::properties
