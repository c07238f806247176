// SPDX-License-Identifier: MIT
// The only place in the plug-in that asks the platform's loader.
#include "qgis/plugin/ComponentFile.h"

#include "hostkit/StyleEditorPlugin.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace Orvane {

namespace {

const char anchor = 0; // its address is in this library

#ifdef Q_OS_WIN
QString PluginFile()
{
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    wchar_t path[MAX_PATH] = {};
    if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&anchor), &module))
        return {};
    return QString::fromWCharArray(path, int(GetModuleFileNameW(module, path, MAX_PATH)));
}
#else
QString PluginFile()
{
    Dl_info info{};
    if (dladdr(&anchor, &info) == 0 || !info.dli_fname)
        return {};
    return QFile::decodeName(info.dli_fname);
}
#endif

// Empty if there is none; ORVANE_COMPONENT_WAY leads from the plug-in's folder to it.
QString InstalledComponent()
{
#ifdef ORVANE_COMPONENT_WAY
    QDir folder(QFileInfo(PluginFile()).absolutePath());
    if (!folder.cd(QStringLiteral(ORVANE_COMPONENT_WAY)))
        return {};
    const QString name = QLatin1String(StyleEditorPlugin::DefaultName);
    for (const QFileInfo& file : folder.entryInfoList(QDir::Files)) {
        if (file.baseName().endsWith(name) && QLibrary::isLibrary(file.fileName()))
            return file.absoluteFilePath();
    }
#endif
    return {};
}

} // namespace

QString ComponentFile()
{
    QString named = qEnvironmentVariable("ORVANE_COMPONENT");
    if (!named.isEmpty())
        return named;
    const QString installed = InstalledComponent();
    return installed.isEmpty() ? QString::fromLatin1(StyleEditorPlugin::DefaultName) : installed;
}

} // namespace Orvane
