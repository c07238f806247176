// SPDX-License-Identifier: MIT
#include "qgis/plugin/ComponentFile.h"

#include "hostkit/StyleEditorPlugin.h"
#include "messages/LibraryFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace Orvane {

namespace {

// Empty if there is none; ORVANE_COMPONENT_WAY leads from the plug-in's folder to it.
QString InstalledComponent()
{
#ifdef ORVANE_COMPONENT_WAY
    QDir folder(QFileInfo(LibraryFile()).absolutePath());
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
