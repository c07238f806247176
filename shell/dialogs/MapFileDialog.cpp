// SPDX-License-Identifier: MIT
#include "shell/dialogs/MapFileDialog.h"

#include "mapkit/document/MapDocument.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace Orvane::MapFileDialog {

namespace {

// The name of the data, or of their folder if there are several.
QString NameOfData(const std::vector<LayerSource>& sources)
{
    const QFileInfo first(sources.front().path);
    const bool isOne = std::all_of(sources.begin(), sources.end(), [&](const LayerSource& source) {
        return source.path == sources.front().path;
    });
    return isOne ? first.completeBaseName() : first.dir().dirName();
}

// That of a map on a server is made fit for a file.
QString NameFor(const MapDocument& document, const std::vector<LayerSource>& sources)
{
    QString name = document.Name().replace(u'/', u'-');
    if (!name.isEmpty())
        return name;
    return sources.empty() ? QCoreApplication::translate("MapFileDialog", "New map") : NameOfData(sources);
}

QString WritableFolder(const QString& folder)
{
    return QFileInfo(folder).isWritable()
        ? folder
        : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace

QString Proposed(const MapDocument& document)
{
    if (!document.FilePath().isEmpty())
        return document.FilePath();
    const std::vector<LayerSource> sources = document.Sources();
    const QString folder = sources.empty() ? QString() : QFileInfo(sources.front().path).path();
    return QDir(WritableFolder(folder)).filePath(NameFor(document, sources) + QStringLiteral(".orvane"));
}

QString Ask(const QString& title, const QString& proposed, QWidget* parent)
{
    const QFileInfo file(proposed);
    const QString kind = QCoreApplication::translate("MapFileDialog", "Maps (*.orvane)");
    QFileDialog dialog(parent, title, file.path(), kind);
    dialog.setObjectName(QStringLiteral("dlgMapFile"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("orvane"));
    if (!file.fileName().isEmpty())
        dialog.selectFile(file.fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace Orvane::MapFileDialog
