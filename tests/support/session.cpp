#include "support/session.h"

#include "support/printing.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace test {

void settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void speak(bool german) {
    QLocale::setDefault(german ? QLocale(QLocale::German, QLocale::Germany) : QLocale::c());
    QEvent change(QEvent::LocaleChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}

void playSessions(const QString& name, const Does& does, const Sees& sees) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QRegularExpression separator(" = |: ");
    int number = 0;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        SCOPED_TRACE("line " + std::to_string(++number) + ": " + line.toStdString());
        if (line.isEmpty() || line.startsWith('#')) continue;
        const QString verb = line.section(' ', 0, 0);
        const QString all = line.section(' ', 1).replace("\\n", "\n").replace("\\t", "\t");
        const Words words{all, all.section(separator, 0, 0), all.section(separator, 1)};
        if (const auto action = does.find(verb); action != does.end()) {
            action->second(words);
            settle();
        } else {
            EXPECT_EQ(sees.at(verb)(words), all);
        }
    }
    EXPECT_GT(number, 50);
}

}  // namespace test
