// Prints Qt's texts in failure messages.
#pragma once

#include <QString>

#include <ostream>

inline std::ostream& operator<<(std::ostream& out, const QString& text) {
    return out << (text.isNull() ? "null" : '"' + text.toStdString() + '"');
}

inline void PrintTo(const QString& text, std::ostream* out) {  // otherwise as a list of characters
    *out << text;
}
