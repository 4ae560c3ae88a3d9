#include "apps/texts/output.h"

#include <QSaveFile>

#include <stdexcept>

namespace tiv::apps {

void replaceFile(const QString& file, const QByteArray& content) {
    QSaveFile output(file);
    // QSaveFile::commit() of Qt 5.15 ignores a flush that fails, and replaces the file by a shorter one.
    const bool isWritten = output.open(QIODevice::WriteOnly) && output.write(content) == content.size() &&
                           output.flush() && output.commit();
    if (!isWritten) throw std::runtime_error((file + ": " + output.errorString()).toStdString());
}

}  // namespace tiv::apps
