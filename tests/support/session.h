// Sessions are plain text: what a user does, and what is then seen. A line is a verb and its argument. A verb
// that sees fails the test unless its argument is what it sees, and an unknown verb fails. "\n" and "\t" are
// escapes. A session begins with its title; an empty line ends it:
//
//     # A choice is written at once.
//     choose Groups = Full output
//     settings CjAGAAA=
#pragma once

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace test {

struct Words {
    QString all;           // behind the verb
    QString label, value;  // of "LABEL = VALUE" and "LABEL: VALUE"
};

using Does = std::map<QString, std::function<void(const Words&)>>;
using Sees = std::map<QString, std::function<QString(const Words&)>>;

struct Session {
    QString title;
    int line;  // of the title in its file, from 1
    QStringList lines;
};
// Those of a file. A comment without lines is none.
std::vector<Session> readSessions(const QString& file);
void play(const Session& session, const Does& does, const Sees& sees);
// Its title as the name of a test: "A_choice_is_written_at_once".
std::string testName(const testing::TestParamInfo<Session>& session);
void PrintTo(const Session& session, std::ostream* out);  // name as GoogleTest expects it

// Processes pending events.
void settle();
// Sets the language of the application: German or English.
void speak(bool german);

}  // namespace test
