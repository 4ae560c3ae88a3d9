#include "apps/texts/reasons.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <vector>

namespace tiv::apps {
namespace {

constexpr const char* reasons[] = {
    // of the project database
    QT_TRANSLATE_NOOP("Reason", "already exists"),
    QT_TRANSLATE_NOOP("Reason", "no file name"),
    QT_TRANSLATE_NOOP("Reason", "no such file"),
    QT_TRANSLATE_NOOP("Reason", "not a file"),
    QT_TRANSLATE_NOOP("Reason", "not a project"),
    QT_TRANSLATE_NOOP("Reason", "the file is damaged"),
    QT_TRANSLATE_NOOP("Reason", "the file was replaced"),
    QT_TRANSLATE_NOOP("Reason", "no such table: %1"),
    QT_TRANSLATE_NOOP("Reason", "invalid number of %1"),
    QT_TRANSLATE_NOOP("Reason", "quads"),
    QT_TRANSLATE_NOOP("Reason", "brics"),
    QT_TRANSLATE_NOOP("Reason", "beams"),
    QT_TRANSLATE_NOOP("Reason", "cables"),
    QT_TRANSLATE_NOOP("Reason", "springs"),
    QT_TRANSLATE_NOOP("Reason", "project format %1, expected %2"),
    // of SQLite
    QT_TRANSLATE_NOOP("Reason", "attempt to write a readonly database"),
    QT_TRANSLATE_NOOP("Reason", "database disk image is malformed"),
    QT_TRANSLATE_NOOP("Reason", "database is locked"),
    QT_TRANSLATE_NOOP("Reason", "database or disk is full"),
    QT_TRANSLATE_NOOP("Reason", "disk I/O error"),
    QT_TRANSLATE_NOOP("Reason", "file is not a database"),
    QT_TRANSLATE_NOOP("Reason", "unable to open database file"),
    // of a settings file
    QT_TRANSLATE_NOOP("Reason", "longer than 64 MiB"),
    QT_TRANSLATE_NOOP("Reason", "no such folder"),
    QT_TRANSLATE_NOOP("Reason", "too many links"),
    // of the system
    QT_TRANSLATE_NOOP("Reason", "Disk quota exceeded"),
    QT_TRANSLATE_NOOP("Reason", "File name too long"),
    QT_TRANSLATE_NOOP("Reason", "File too large"),
    QT_TRANSLATE_NOOP("Reason", "Input/output error"),
    QT_TRANSLATE_NOOP("Reason", "Is a directory"),
    QT_TRANSLATE_NOOP("Reason", "No space left on device"),
    QT_TRANSLATE_NOOP("Reason", "No such file or directory"),
    QT_TRANSLATE_NOOP("Reason", "Not a directory"),
    QT_TRANSLATE_NOOP("Reason", "Permission denied"),
    QT_TRANSLATE_NOOP("Reason", "Read-only file system"),
    QT_TRANSLATE_NOOP("Reason", "Too many levels of symbolic links"),
    // of settings that cannot be read
    QT_TRANSLATE_NOOP("Reason", "%1 records instead of one"),
    QT_TRANSLATE_NOOP("Reason", "Max recursion depth exceeded"),
    QT_TRANSLATE_NOOP("Reason", "Read out of bounds: %1 bytes requested, offset: %2, length: %3"),
    QT_TRANSLATE_NOOP("Reason", "Unknown data type found"),
    QT_TRANSLATE_NOOP("Reason", "JSON parser error: %1 at offset %2"),
    // of RapidJSON
    QT_TRANSLATE_NOOP("Reason", "The document is empty."),
    QT_TRANSLATE_NOOP("Reason", "The document root must not be followed by other values."),
    QT_TRANSLATE_NOOP("Reason", "Invalid value."),
    QT_TRANSLATE_NOOP("Reason", "Missing a name for object member."),
    QT_TRANSLATE_NOOP("Reason", "Missing a colon after a name of object member."),
    QT_TRANSLATE_NOOP("Reason", "Missing a comma or '}' after an object member."),
    QT_TRANSLATE_NOOP("Reason", "Missing a comma or ']' after an array element."),
    QT_TRANSLATE_NOOP("Reason", "Incorrect hex digit after \\u escape in string."),
    QT_TRANSLATE_NOOP("Reason", "The surrogate pair in string is invalid."),
    QT_TRANSLATE_NOOP("Reason", "Invalid escape character in string."),
    QT_TRANSLATE_NOOP("Reason", "Missing a closing quotation mark in string."),
    QT_TRANSLATE_NOOP("Reason", "Invalid encoding in string."),
    QT_TRANSLATE_NOOP("Reason", "Number too big to be stored in double."),
    QT_TRANSLATE_NOOP("Reason", "Miss fraction part in number."),
    QT_TRANSLATE_NOOP("Reason", "Miss exponent in number."),
};

// What a text ends with that gives the reason; the pattern captures what stands for "%1".
QRegularExpression patternOf(const char* reason) {
    QString pattern = QRegularExpression::escape(QString::fromLatin1(reason));
    pattern.replace(QRegularExpression(QStringLiteral("\\\\%\\d")), QStringLiteral("(.+)"));
    return QRegularExpression(QStringLiteral("(^|: )%1$").arg(pattern));
}

}  // namespace

QString translatedReason(const QString& text) {
    static const std::vector<QRegularExpression> patterns = [] {
        std::vector<QRegularExpression> result;
        for (const char* reason : reasons) result.push_back(patternOf(reason));
        return result;
    }();
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        const auto match = patterns[i].match(text);
        if (!match.hasMatch()) continue;
        QString translation = QCoreApplication::translate("Reason", reasons[i]);
        for (int part = 2; part <= match.lastCapturedIndex(); ++part)
            translation = translation.arg(translatedReason(match.captured(part)));
        return text.left(match.capturedEnd(1)) + translation;
    }
    return text;
}

}  // namespace tiv::apps
