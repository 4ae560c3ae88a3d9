// Sessions are plain text: what a user does, and what is then seen. A line is a verb and what it is about;
// a verb that sees fails the test unless the rest of its line is what it sees. "\n" and "\t" stand for
// themselves, a line that begins with "#" is a comment.
//
//     choose Groups = Full output
//     settings CjAGAAA=
#pragma once

#include <QString>

#include <functional>
#include <map>

namespace test {

struct Words {
    QString all;           // behind the verb
    QString label, value;  // of "LABEL = VALUE" and "LABEL: VALUE"
};

using Does = std::map<QString, std::function<void(const Words&)>>;
using Sees = std::map<QString, std::function<QString(const Words&)>>;

void playSessions(const QString& file, const Does& does, const Sees& sees);

// Lets everything happen that is due.
void settle();
// The application speaks German, or English.
void speak(bool german);

}  // namespace test
