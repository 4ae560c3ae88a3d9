// Texts in and out: files, the standard streams, tables for people. All text is UTF-8.
#pragma once

#include <QJsonDocument>
#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace tiv::tool {

// The file name that stands for standard input or output.
inline const QString standardStream = QStringLiteral("-");

// "<file>: <reason>", to be thrown.
std::runtime_error failure(const QString& file, const QString& reason);

// What an input is called in errors: its file name, or "standard input".
QString inputName(const QString& file);

// The text of a file, UTF-8, or UTF-16 after a byte-order mark. The mark is left out and CR LF read as LF:
// editors and shells on Windows write both. Throws failure().
QString readText(const QString& file);

// Replaces the file atomically, behind links too; one that cannot be written completely stays as it was.
// Throws failure().
void writeText(const QString& file, const QString& text);

// To standard output. Throws failure() also when the device takes less than all.
void print(const QString& text);

// One line on stderr: "echotable: <text>".
void complain(const QString& text);
// "echotable: warning: <text>"
void warn(const QString& text);

// The text with its control characters as "\n", "\t" or "\x1b": they would change a line or the terminal.
QString visible(const QString& text);

QString jsonText(const QJsonDocument& document);

// The rows, one a line, with their columns below each other.
QString aligned(const std::vector<QStringList>& rows);

}  // namespace tiv::tool
