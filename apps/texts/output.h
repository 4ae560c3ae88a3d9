// Files that the programs write.
#pragma once

#include <QByteArray>
#include <QString>

namespace tiv::apps {

// Replaces the file atomically; one that cannot be written completely stays as it was. Throws std::runtime_error
// "<file>: <reason>".
void replaceFile(const QString& file, const QByteArray& content);

}  // namespace tiv::apps
