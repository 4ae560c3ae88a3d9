// Plays the sessions of sessions.txt: what an engineer does, and what is then seen.
#include "inspector/host.h"
#include "support/printing.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFile>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>
#include <QShortcut>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace {

using namespace test;

class Session {
 public:
    void play(const QString& line) {
        const QString verb = line.section(' ', 0, 0);
        const QString text = line.section(' ', 1).replace("\\n", "\n").replace("\\t", "\t");
        const QString label = text.section(QRegularExpression(" = |: "), 0, 0);
        const QString rest = text.mid(label.size()).remove(QRegularExpression("^( = |: )"));
        Driver* driver = host_ ? host_->driver.get() : nullptr;
        const std::map<QString, std::function<void()>> does{
            {"open", [&] { open(text.section(' ', 0, 0).toInt(), text.section(' ', 1)); }},
            {"load", [&] { host_->echo->insertXMLData(text); }},
            {"forget", [&] { host_->echo.reset(); }},
            {"choose", [&] { driver->choose(label, rest); }},
            {"click", [&] { driver->click(text); }},
            {"name", [&] { driver->click(text, 0); }},
            {"also", [&] { driver->click(text, 0, Qt::ControlModifier); }},
            {"sign", [&] { driver->click(text, 2); }},
            {"menu", [&] { driver->menu(text); }},
            {"pick", [&] { driver->pick(text); }},
            {"press", [&] { press(text); }},
            {"type", [&] { driver->type(text); }},
            {"outside",
                [&] {
                    QTest::mouseClick(driver->list()->window(), Qt::LeftButton, {}, {-9, -9});
                }},
            {"hide", [&] { driver->list()->window()->hide(); }},
            {"speak", [&] { speak(text); }},
            {"clipboard", [&] { QApplication::clipboard()->setText(text); }},
        };
        const std::map<QString, std::function<QString()>> sees{
            {"settings", [&] { return host_->echo->getXMLData().trimmed(); }},
            {"row", [&] { return label + " = " + driver->row(label); }},
            {"labels",
                [&] { return driver->rows().replaceInStrings(QRegularExpression("=.*"), "").join('|'); }},
            {"list", [&] { return driver->offered().join('|'); }},
            {"marked", [&] { return driver->marked(); }},
            {"message", [&] { return driver->message(); }},
            {"focus", [&] { return focus(); }},
            {"current", [&] { return driver->view->currentIndex().siblingAtColumn(0).data().toString(); }},
            {"copied", [&] { return QApplication::clipboard()->text(); }},
            {"tip", [&] { return label + ": " + driver->tip(label); }},
            {"host", [&] { return QString::number(reachedHost_); }},
        };
        if (const auto action = does.find(verb); action != does.end()) {
            action->second();
            settle();
        } else {
            EXPECT_EQ(sees.at(verb)(), text) << line.toStdString();
        }
    }

 private:
    void open(int type, const QString& settings) {
        host_ = std::make_unique<Host>(type, settings);
        reachedHost_ = 0;
        auto* shortcut = new QShortcut(QKeySequence::Undo, &host_->window);
        QObject::connect(shortcut, &QShortcut::activated, [this] { ++reachedHost_; });
        auto* after = new QLineEdit;
        host_->window.layout()->addWidget(after);
        QWidget::setTabOrder(host_->driver->view, after);
    }

    void press(const QString& keys) {
        const auto combination = static_cast<unsigned>(QKeySequence(keys)[0]);
        const unsigned modifiers = combination & static_cast<unsigned>(Qt::KeyboardModifierMask);
        host_->driver->key(
            static_cast<int>(combination - modifiers), Qt::KeyboardModifiers(static_cast<int>(modifiers)));
    }

    static void speak(const QString& language) {
        QLocale::setDefault(language == "de" ? QLocale(QLocale::German, QLocale::Germany) : QLocale::c());
        QEvent change(QEvent::LocaleChange);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
    }

    QString focus() const {
        if (host_->driver->hasFocus()) return "table";
        return host_->driver->widget->isAncestorOf(QApplication::focusWidget()) ? "filter" : "host";
    }

    std::unique_ptr<Host> host_;
    int reachedHost_ = 0;
};

TEST(Inspector, KeepsToItsSessions) {
    QFile file(TIV_SESSIONS);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    Session session;
    int number = 0;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        SCOPED_TRACE("line " + std::to_string(++number));
        if (!line.isEmpty() && !line.startsWith('#')) session.play(line);
    }
    EXPECT_GT(number, 150);
}

}  // namespace
