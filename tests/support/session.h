// Sessions are plain text: what a user does, and what the program then shows. A line is a verb and its argument.
// Some verbs act, the others compare their argument with what is shown. An unknown verb is a failure. "\n" and
// "\t" are escapes. A session begins with its title and ends with an empty line:
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
// Reads the sessions of a file. A comment that no line follows is no session.
std::vector<Session> readSessions(const QString& file);
void play(const Session& session, const Does& does, const Sees& sees);
// Its title as the name of a test: "A_choice_is_written_at_once".
std::string testName(const testing::TestParamInfo<Session>& session);
void PrintTo(const Session& session, std::ostream* out);  // name as GoogleTest expects it

// Processes pending events.
void settle();
// Sets the language of the application: German, or English.
void setGerman(bool german);

}  // namespace test
