// Plays the sessions of sessions.txt: what an engineer does with an inspector, and what is then seen.
#include "inspector/host.h"
#include "support/session.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QRegularExpression>
#include <QShortcut>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using namespace test;

std::unique_ptr<Host> host;
int reachedHost = 0;

void open(int type, const QString& settings) {
    host = std::make_unique<Host>(type, settings);
    reachedHost = 0;
    auto* shortcut = new QShortcut(QKeySequence::Undo, &host->window);
    QObject::connect(shortcut, &QShortcut::activated, [] { ++reachedHost; });
    auto* after = new QLineEdit;
    host->window.layout()->addWidget(after);
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

// While the list is open, which is what the click meets.
void clickAgain(const QString& label) {
    auto* popup = host->driver->list()->window();
    const QPoint cell = host->driver->view->viewport()->mapToGlobal(host->driver->cell(label, 1).center());
    QTest::mouseClick(popup, Qt::LeftButton, {}, popup->mapFromGlobal(cell));
}

TEST(Inspector, KeepsToItsSessions) {
    const QRegularExpression value("=.*");
    playSessions(TIV_SESSIONS,
        {
            {"open", [](const Words& w) { open(w.all.section(' ', 0, 0).toInt(), w.all.section(' ', 1)); }},
            {"load", [](const Words& w) { host->echo->insertXMLData(w.all); }},
            {"forget", [](const Words&) { host->echo.reset(); }},
            {"choose", [](const Words& w) { host->driver->choose(w.label, w.value); }},
            {"click", [](const Words& w) { host->driver->click(w.all); }},
            {"name", [](const Words& w) { host->driver->click(w.all, 0); }},
            {"also", [](const Words& w) { host->driver->click(w.all, 0, Qt::ControlModifier); }},
            {"sign", [](const Words& w) { host->driver->click(w.all, 2); }},
            {"menu", [](const Words& w) { EXPECT_TRUE(host->driver->menu(w.all)); }},
            {"pick", [](const Words& w) { EXPECT_TRUE(host->driver->pick(w.all)); }},
            {"press", [](const Words& w) { press(w.all); }},
            {"type", [](const Words& w) { host->driver->type(w.all); }},
            {"outside", [](const Words&) { clickOutside(); }},
            {"hide", [](const Words&) { host->driver->list()->window()->hide(); }},
            {"speak", [](const Words& w) { speak(w.all == "de"); }},
            {"again", [](const Words& w) { clickAgain(w.all); }},
            {"leave", [](const Words&) { host->driver->widget->hide(); }},
            {"return", [](const Words&) { host->driver->widget->show(); }},
            {"clipboard", [](const Words& w) { QApplication::clipboard()->setText(w.all); }},
        },
        {
            {"settings", [](const Words&) { return host->echo->getXMLData().trimmed(); }},
            {"row", [](const Words& w) { return w.label + " = " + host->driver->row(w.label); }},
            {"labels",
                [&](const Words&) { return host->driver->rows().replaceInStrings(value, "").join('|'); }},
            {"list", [](const Words&) { return host->driver->offered().join('|'); }},
            {"marked", [](const Words&) { return host->driver->marked(); }},
            {"message", [](const Words&) { return host->driver->message(); }},
            {"focus", [](const Words&) { return focus(); }},
            {"current",
                [](const Words&) {
                    return host->driver->view->currentIndex().siblingAtColumn(0).data().toString();
                }},
            {"copied", [](const Words&) { return QApplication::clipboard()->text(); }},
            {"tip", [](const Words& w) { return w.label + ": " + host->driver->tip(w.label); }},
            {"disabled", [](const Words& w) { return host->driver->menu(w.all) ? "" : w.all; }},
            {"host", [](const Words&) { return QString::number(reachedHost); }},
        });
    host.reset();
    QTest::qWait(50);  // animations of the filter see that it is gone
}

}  // namespace
