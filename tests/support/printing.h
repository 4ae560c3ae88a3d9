// Failure messages show Qt's texts as texts.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << (text.isNull() ? "null" : '"' + text.toStdString() + '"');
}

inline void PrintTo(const QStringList& texts, std::ostream* out) {
    for (const QString& text : texts) *out << "\n    " << text.toStdString();
}
