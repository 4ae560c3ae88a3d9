#include "support/session.h"

#include "support/printing.h"

#include <QtCore>

#include <gtest/gtest.h>

namespace test {

void settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void setGerman(bool german) {
    QLocale::setDefault(german ? QLocale(QLocale::German, QLocale::Germany) : QLocale::c());
    QEvent change(QEvent::LocaleChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}

std::vector<Session> readSessions(const QString& file) {
    QFile text(file);
    EXPECT_TRUE(text.open(QIODevice::ReadOnly)) << file;
    std::vector<Session> sessions;
    int number = 0;
    bool begins = true;
    for (const QString& line : QString::fromUtf8(text.readAll()).split('\n')) {
        ++number;
        if (begins && line.startsWith("# ")) sessions.push_back({line.mid(2), number, {}});
        if (!sessions.empty() && !begins) sessions.back().lines << line;
        begins = line.isEmpty();
    }
    const QRegularExpression action("^[^#]");
    std::erase_if(sessions, [&](const Session& one) { return one.lines.filter(action).isEmpty(); });
    return sessions;
}

void play(const Session& session, const Does& does, const Sees& sees) {
    static const QRegularExpression separator(" = |: ");
    int number = session.line;
    for (const QString& line : session.lines) {
        SCOPED_TRACE("line " + std::to_string(++number) + ": " + line.toStdString());
        if (line.isEmpty() || line.startsWith('#')) continue;
        const QString verb = line.section(' ', 0, 0);
        const QString all = line.section(' ', 1).replace("\\n", "\n").replace("\\t", "\t");
        const Words words{all, all.section(separator, 0, 0), all.section(separator, 1)};
        if (const auto action = does.find(verb); action != does.end()) {
            action->second(words);
            settle();
        } else if (const auto seen = sees.find(verb); seen != sees.end()) {
            EXPECT_EQ(seen->second(words), all);
        } else {
            ADD_FAILURE() << "unknown verb";
        }
    }
}

std::string testName(const testing::TestParamInfo<Session>& session) {
    QString name = session.param.title;
    return name.replace(QRegularExpression("[^A-Za-z0-9]+"), "_").toStdString();
}

void PrintTo(const Session& session, std::ostream* out) {
    *out << session.title;
}

}  // namespace test
