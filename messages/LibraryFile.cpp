// SPDX-License-Identifier: MIT
// The only place that asks the platform's loader where code lies.
#include "messages/LibraryFile.h"

#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace Orvane {

namespace {

const char anchor = 0; // its address is in this library

} // namespace

#ifdef Q_OS_WIN
QString LibraryFile()
{
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    wchar_t path[MAX_PATH] = {};
    if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&anchor), &module))
        return {};
    return QString::fromWCharArray(path, int(GetModuleFileNameW(module, path, MAX_PATH)));
}
#else
QString LibraryFile()
{
    Dl_info info{};
    if (dladdr(&anchor, &info) == 0 || !info.dli_fname)
        return {};
    return QFile::decodeName(info.dli_fname);
}
#endif

} // namespace Orvane
