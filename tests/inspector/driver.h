// Operates an inspector with mouse and keys, and reads what it shows.
#pragma once

#include "support/session.h"

#include <QtWidgets>

namespace test {

// The texts of a menu's entries.
QString texts(const QMenu& menu);

class Driver {
 public:
    // Shows the inspector, wide enough for nothing to be cut.
    explicit Driver(QWidget* inspector);

    QStringList rows() const;  // the visible ones: "label=value", changed ones with a "*" behind
    QString row(const QString& label) const;
    QRect cell(const QString& label, int column) const;

    void click(const QString& label, int column = 1, Qt::KeyboardModifiers modifiers = {});
    void key(int key, Qt::KeyboardModifiers modifiers = {});  // to whatever has the focus
    void type(const QString& text);
    static void wheel(QWidget* target);  // one turn
    // The open list of levels, or null.
    QAbstractItemView* list() const;
    QStringList offered() const;               // by the open list or menu
    QPoint hover(const QString& level) const;  // fails if no open list offers it; returns the place
    QString marked() const;                    // the list's current entry
    void pick(const QString& level);
    void choose(const QString& label, const QString& level);  // two clicks
    // The context menu of the current row.
    void openMenu();
    // "Set to/Full output" of the open menu; fails and gives null when there is none.
    QAction* menuEntry(const QString& entry) const;
    void clickMenu(const QString& entry);
    void closeMenu() const;
    QString tip(const QString& label, int column = 1) const;
    QString message() const;  // the sentence below the table; empty when none is shown
    bool hasFocus() const;

    const QPointer<QWidget> widget;
    const QPointer<QTreeView> view;
};

}  // namespace test
