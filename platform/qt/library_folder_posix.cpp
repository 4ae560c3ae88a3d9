#include "platform/qt/init_translator.h"

#include <QFileInfo>

#include <dlfcn.h>

namespace tiv::qt {

QString libraryFolder() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&libraryFolder), &info) == 0 || !info.dli_fname) return {};
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
}

void keepLibraryLoaded() {}  // linked with -z nodelete

}  // namespace tiv::qt
