// SPDX-License-Identifier: MIT
// The only place in the component that asks the platform's loader.
#include "component/common/MessageFile.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace Orvane {

namespace {

const char anchor = 0; // its address is in this library

#ifdef Q_OS_WIN
QString LoadedFrom()
{
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    wchar_t path[MAX_PATH] = {};
    if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&anchor), &module))
        return {};
    return QString::fromWCharArray(path, int(GetModuleFileNameW(module, path, MAX_PATH)));
}
#else
QString LoadedFrom()
{
    Dl_info info{};
    if (dladdr(&anchor, &info) == 0 || !info.dli_fname)
        return {};
    return QFile::decodeName(info.dli_fname);
}
#endif

} // namespace

QString ComponentFolder()
{
    // Asked only once: the loader's path may be relative to the folder that was current at that time.
    static const QString folder = QFileInfo(LoadedFrom()).absolutePath();
    return folder;
}

} // namespace Orvane
