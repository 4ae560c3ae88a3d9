#include "apps/echohost/messages.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace echohost {
namespace {

constexpr const char* reasons[] = {
    // of the project database
    QT_TRANSLATE_NOOP("Reason", "already exists"),
    QT_TRANSLATE_NOOP("Reason", "no file name"),
    QT_TRANSLATE_NOOP("Reason", "no such file"),
    QT_TRANSLATE_NOOP("Reason", "not a file"),
    QT_TRANSLATE_NOOP("Reason", "not a project"),
    QT_TRANSLATE_NOOP("Reason", "the file is damaged"),
    QT_TRANSLATE_NOOP("Reason", "no such table: %1"),
    QT_TRANSLATE_NOOP("Reason", "invalid number of %1"),
    QT_TRANSLATE_NOOP("Reason", "project format %1, expected %2"),
    // of SQLite
    QT_TRANSLATE_NOOP("Reason", "attempt to write a readonly database"),
    QT_TRANSLATE_NOOP("Reason", "database is locked"),
    QT_TRANSLATE_NOOP("Reason", "database or disk is full"),
    QT_TRANSLATE_NOOP("Reason", "disk I/O error"),
    QT_TRANSLATE_NOOP("Reason", "file is not a database"),
    QT_TRANSLATE_NOOP("Reason", "unable to open database file"),
    // of the system
    QT_TRANSLATE_NOOP("Reason", "File too large"),
    QT_TRANSLATE_NOOP("Reason", "Is a directory"),
    QT_TRANSLATE_NOOP("Reason", "No space left on device"),
    QT_TRANSLATE_NOOP("Reason", "No such file or directory"),
    QT_TRANSLATE_NOOP("Reason", "Permission denied"),
    QT_TRANSLATE_NOOP("Reason", "Read-only file system"),
    // of settings that cannot be read
    QT_TRANSLATE_NOOP("Reason", "%1 records instead of one"),
    QT_TRANSLATE_NOOP("Reason", "JSON parser error: %1 at offset %2"),
    QT_TRANSLATE_NOOP("Reason", "Max recursion depth exceeded"),
    QT_TRANSLATE_NOOP("Reason", "Read out of bounds: %1 bytes requested, offset: %2, length: %3"),
    QT_TRANSLATE_NOOP("Reason", "Unknown data type found"),
};

}  // namespace

QString translatedReason(const QString& text) {
    for (const char* reason : reasons) {
        QString pattern = QRegularExpression::escape(QString::fromLatin1(reason));
        pattern.replace(QRegularExpression(QStringLiteral("\\\\%\\d")), QStringLiteral("(.+)"));
        const auto match = QRegularExpression(QStringLiteral("(^|: )%1$").arg(pattern)).match(text);
        if (!match.hasMatch()) continue;
        QString translation = QCoreApplication::translate("Reason", reason);
        for (int i = 2; i <= match.lastCapturedIndex(); ++i) translation = translation.arg(match.captured(i));
        return text.left(match.capturedEnd(1)) + translation;
    }
    return text;
}

}  // namespace echohost
