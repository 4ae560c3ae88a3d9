#include "platform/qt/init_translator.h"

#include <QFileInfo>

#include <array>

#include <windows.h>

namespace tiv::qt {

QString libraryFolder() {
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&libraryFolder), &module)) return {};
    std::array<wchar_t, 32768> path{};  // longest path on Windows
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0 || length == path.size()) return {};
    return QFileInfo(QString::fromWCharArray(path.data(), static_cast<int>(length))).absolutePath();
}

void keepLibraryLoaded() {
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
    GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&keepLibraryLoaded), &module);
}

}  // namespace tiv::qt
