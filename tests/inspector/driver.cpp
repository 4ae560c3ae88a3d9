#include "inspector/driver.h"

#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace test {

QString texts(const QMenu& menu) {
    QStringList result;
    for (const QAction* entry : menu.actions()) result << (entry->isSeparator() ? "-" : entry->text());
    return result.join('|');
}

Driver::Driver(QWidget* inspector) : widget(inspector), view(inspector->findChild<QTreeView*>()) {
    widget->resize(640, 480);
    widget->show();
    QApplication::setActiveWindow(widget->window());
    widget->setFocus();
    settle();
}

QStringList Driver::rows() const {
    QStringList result;
    const QAbstractItemModel& model = *view->model();
    for (int i = 0; i < model.rowCount(); ++i) {
        if (view->isRowHidden(i, {})) continue;
        const QModelIndex label = model.index(i, 0);
        const bool changed = label.data(Qt::FontRole).value<QFont>().bold();
        result << label.data().toString() + '=' + label.siblingAtColumn(1).data().toString() +
                      (changed ? "*" : "");
    }
    return result;
}

QString Driver::row(const QString& label) const {
    for (const QString& text : rows())
        if (text.startsWith(label + '=')) return text.mid(label.size() + 1);
    return QStringLiteral("no such row");
}

QRect Driver::cell(const QString& label, int column) const {
    const auto found =
        view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, label, 1, Qt::MatchExactly);
    if (found.isEmpty()) return {};
    view->scrollTo(found.front());
    return view->visualRect(found.front().siblingAtColumn(column));
}

void Driver::click(const QString& label, int column, Qt::KeyboardModifiers modifiers) {
    QApplication::setActiveWindow(widget->window());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, cell(label, column).center());
    settle();
}

void Driver::key(int key, Qt::KeyboardModifiers modifiers) {
    QWidget* target = list() ? list() : QApplication::focusWidget();
    if (target) QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
    settle();
}

void Driver::wheel(QWidget* target) {
    const QPointF at = target->rect().center();
    QWheelEvent event(
        at, target->mapToGlobal(at.toPoint()), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
    settle();
}

void Driver::type(const QString& text) {
    QTest::keyClicks(list() ? list() : QApplication::focusWidget(), text);
    settle();
}

QAbstractItemView* Driver::list() const {
    const QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup->findChild<QAbstractItemView*>() : nullptr;
}

QStringList Driver::offered() const {
    if (const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) return {texts(*menu)};
    QStringList result;
    for (int i = 0; list() && i < list()->model()->rowCount(); ++i)
        result << list()->model()->index(i, 0).data().toString();
    return result;
}

QString Driver::marked() const {
    const auto* open = list();
    if (!open || open->selectionModel()->selectedIndexes().isEmpty()) return {};
    return open->selectionModel()->selectedIndexes().front().data().toString();
}

QPoint Driver::hover(const QString& level) const {
    const auto entry = static_cast<int>(offered().indexOf(level));
    EXPECT_TRUE(list() && entry >= 0) << level.toStdString();
    if (!list()) return {};
    const QPoint at = list()->visualRect(list()->model()->index(entry, 0)).center();
    for (const QPoint& point : {at - QPoint(1, 0), at}) QTest::mouseMove(list()->viewport(), point);
    settle();
    return at;
}

void Driver::pick(const QString& level) {
    const QPoint at = hover(level);
    if (list()) QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, at);
}

void Driver::choose(const QString& label, const QString& level) {
    click(label);
    pick(level);
    settle();
}

void Driver::openMenu() {
    const QPoint at = view->visualRect(view->currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, view->viewport()->mapToGlobal(at));
    QApplication::sendEvent(view->viewport(), &event);
    EXPECT_EQ(QApplication::activePopupWidget()->y(), event.globalPos().y());
}

QAction* Driver::menuEntry(const QString& entry) const {
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QAction* found = nullptr;
    for (const QString& text : entry.split('/')) {
        const QList<QAction*> actions = menu ? menu->actions() : QList<QAction*>();
        const auto named = [&](const QAction* one) { return one->text() == text; };
        const auto at = std::find_if(actions.begin(), actions.end(), named);
        EXPECT_NE(at, actions.end()) << text.toStdString();
        if (at == actions.end()) return nullptr;
        found = *at;
        menu = found->menu();
    }
    return found;
}

void Driver::clickMenu(const QString& entry) {
    QAction* action = menuEntry(entry);
    EXPECT_TRUE(action && action->isEnabled()) << entry.toStdString();
    if (action) action->trigger();
    closeMenu();
}

void Driver::closeMenu() const {
    QApplication::activePopupWidget()->close();
    QApplication::setActiveWindow(widget->window());
    settle();
}

QString Driver::tip(const QString& label, int column) const {
    return view->indexAt(cell(label, column).center()).data(Qt::ToolTipRole).toString();
}

QString Driver::message() const {
    for (const auto* label : widget->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
        if (label->isVisible()) return label->text();
    return {};
}

bool Driver::hasFocus() const {
    return view->hasFocus() && view->currentIndex().column() == 1;
}

}  // namespace test
