// Plays the sessions of sessions.txt.
#include "inspector/host.h"

#include <QTest>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformtheme.h>

#include <gtest/gtest.h>

#include <utility>

namespace {

using namespace test;

std::unique_ptr<Host> host;
QStringList hostKeys;

void open(int type, const QString& settings) {
    host = std::make_unique<Host>(type, settings);
    hostKeys.clear();
    for (const QString key :
        {"Ctrl+Z", "Ctrl+Y", "Alt+L", "F9", "Del", "Space", "Ctrl+Space", "Esc", "Shift+End", "L"})
        QObject::connect(new QShortcut(QKeySequence(key), &host->window), &QShortcut::activated,
            [key] { hostKeys << key; });
    auto *before = new QLineEdit(&host->window), *after = new QLineEdit(&host->window);
    for (QLineEdit* field : {before, after}) host->window.layout()->addWidget(field);
    QWidget::setTabOrder(before, host->driver->view);
    QWidget::setTabOrder(host->driver->view, after);
}

void press(const QString& keys) {
    const auto combination = static_cast<unsigned>(QKeySequence(keys)[0]);
    const unsigned modifiers = combination & static_cast<unsigned>(Qt::KeyboardModifierMask);
    host->driver->key(
        static_cast<int>(combination - modifiers), Qt::KeyboardModifiers(static_cast<int>(modifiers)));
}

QString focus() {
    if (host->driver->hasFocus()) return "table";
    return host->driver->widget->isAncestorOf(QApplication::focusWidget()) ? "filter" : "host";
}

void clickOutside() {
    QTest::mouseClick(host->driver->list()->window(), Qt::LeftButton, {}, {-9, -9});
}

// Clicks the cell while the list is open, which receives the click.
void clickAgain(const QString& label) {
    auto* popup = host->driver->list()->window();
    const QPoint cell = host->driver->view->viewport()->mapToGlobal(host->driver->cell(label, 1).center());
    QTest::mouseClick(popup, Qt::LeftButton, {}, popup->mapFromGlobal(cell));
}

bool isInView() {
    const auto& view = *host->driver->view;
    return view.viewport()->rect().contains(view.visualRect(view.currentIndex()).center());
}

QString headings() {
    const QAbstractItemModel& model = *host->driver->view->model();
    return model.headerData(0, Qt::Horizontal).toString() + '|' +
           model.headerData(1, Qt::Horizontal).toString();
}

QString selected() {
    QStringList labels;
    for (const QModelIndex& row : host->driver->view->selectionModel()->selectedRows())
        labels << row.data().toString();
    return labels.join('|');
}

QString filterTexts() {
    return host->driver->widget->findChild<QLineEdit*>()->placeholderText() + '|' +
           host->driver->widget->findChild<QCheckBox*>()->text();
}

// The entries or the keys that an entry of the menu shows.
QString menuEntry(const QString& entry) {
    host->driver->openMenu();
    const QAction* action = host->driver->menuEntry(entry);
    QString seen = "disabled";
    if (action && action->isEnabled())
        seen = action->menu() ? texts(*action->menu()) : action->shortcut().toString();
    host->driver->closeMenu();
    return seen;
}

const Does does{
    {"open", [](const Words& w) { open(w.all.section(' ', 0, 0).toInt(), w.all.section(' ', 1)); }},
    {"insert", [](const Words& w) { host->echo->insertXMLData(w.all); }},
    {"destroy-echo", [](const Words&) { host->echo.reset(); }},
    {"choose", [](const Words& w) { host->driver->choose(w.label, w.value); }},
    {"click-value", [](const Words& w) { host->driver->click(w.all); }},
    {"click-label", [](const Words& w) { host->driver->click(w.all, 0); }},
    {"ctrl-click", [](const Words& w) { host->driver->click(w.all, 0, Qt::ControlModifier); }},
    {"ctrl-click-value", [](const Words& w) { host->driver->click(w.all, 1, Qt::ControlModifier); }},
    {"shift-click-value", [](const Words& w) { host->driver->click(w.all, 1, Qt::ShiftModifier); }},
    {"click-reset", [](const Words& w) { host->driver->click(w.all, 2); }},
    {"menu", [](const Words& w) { host->driver->openMenu(), host->driver->clickMenu(w.all); }},
    {"open-menu", [](const Words&) { host->driver->openMenu(); }},
    {"click-menu", [](const Words& w) { host->driver->clickMenu(w.all); }},
    {"pick", [](const Words& w) { host->driver->pick(w.all); }},
    {"hover", [](const Words& w) { host->driver->hover(w.all); }},
    {"open-list", [](const Words&) { host->driver->view->edit(host->driver->view->currentIndex()); }},
    {"press", [](const Words& w) { press(w.all); }},
    {"type", [](const Words& w) { host->driver->type(w.all); }},
    {"clear-query",
        [](const Words&) {
            QTest::mouseClick(
                host->driver->widget->findChild<QLineEdit*>()->findChild<QToolButton*>(), Qt::LeftButton);
        }},
    {"click-outside", [](const Words&) { clickOutside(); }},
    {"hide-list", [](const Words&) { host->driver->list()->window()->hide(); }},
    {"language", [](const Words& w) { setGerman(w.all == "de"); }},
    {"click-again", [](const Words& w) { clickAgain(w.all); }},
    {"hide-inspector", [](const Words&) { host->driver->widget->hide(); }},
    {"show-inspector", [](const Words&) { host->driver->widget->show(); }},
    {"disable-inspector", [](const Words&) { host->driver->widget->setEnabled(false); }},
    {"enable-inspector", [](const Words&) { host->driver->widget->setEnabled(true); }},
    {"shrink", [](const Words&) { host->window.resize(460, 150); }},
    {"scroll-down", [](const Words&) { host->driver->view->scrollToBottom(); }},
    {"clipboard", [](const Words& w) { QApplication::clipboard()->setText(w.all); }},
};

const Sees sees{
    {"settings", [](const Words&) { return host->echo->getXMLData().trimmed(); }},
    {"row", [](const Words& w) { return w.label + " = " + host->driver->row(w.label); }},
    {"labels",
        [](const Words&) {
            return host->driver->rows().replaceInStrings(QRegularExpression("=.*"), "").join('|');
        }},
    {"headings", [](const Words&) { return headings(); }},
    {"selected", [](const Words&) { return selected(); }},
    {"filter-texts", [](const Words&) { return filterTexts(); }},
    {"list", [](const Words&) { return host->driver->offered().join('|'); }},
    {"list-current", [](const Words&) { return host->driver->marked(); }},
    {"message", [](const Words&) { return host->driver->message(); }},
    {"focus", [](const Words&) { return focus(); }},
    {"current",
        [](const Words&) { return host->driver->view->currentIndex().siblingAtColumn(0).data().toString(); }},
    {"in-view", [](const Words&) { return QString(isInView() ? "yes" : "no"); }},
    {"copied", [](const Words&) { return QApplication::clipboard()->text(); }},
    {"tip", [](const Words& w) { return w.label + ": " + host->driver->tip(w.label); }},
    {"reset-tip", [](const Words& w) { return w.label + ": " + host->driver->tip(w.label, 2); }},
    {"menu-entry", [](const Words& w) { return w.label + " = " + menuEntry(w.label); }},
    {"host-keys", [](const Words&) { return std::exchange(hostKeys, {}).join('|'); }},
};

// Unlike Windows, it has no Ctrl+Y: the inspector adds that itself.
struct Gnome : QPlatformTheme {
    QVariant themeHint(ThemeHint hint) const override {
        return hint == KeyboardScheme ? QVariant(GnomeKeyboardScheme) : QPlatformTheme::themeHint(hint);
    }
};

struct InspectorSession : public testing::TestWithParam<Session> {
    static void TearDownTestSuite() { QTest::qWait(50); }  // frees an animation of the filter bar
};

TEST_P(InspectorSession, IsAsWritten) {
    Gnome gnome;
    auto* theme = std::exchange(QGuiApplicationPrivate::platform_theme, &gnome);
    play(GetParam(), does, sees);
    QGuiApplicationPrivate::platform_theme = theme;
    setGerman(false);
    EXPECT_TRUE(host->window.findChildren<QMenu*>().isEmpty()) << "menus are gone when they are closed";
    host.reset();
    for (const QWidget* left : QApplication::allWidgets())
        EXPECT_EQ(left->windowType(), Qt::Desktop);  // Qt's
}

INSTANTIATE_TEST_SUITE_P(
    Inspector, InspectorSession, testing::ValuesIn(readSessions(TIV_SESSIONS)), testName);

}  // namespace
