// SPDX-License-Identifier: MIT
#include "shell/command/MapCopy.h"

#include "mapkit/document/MapDocument.h"
#include "store/sqlite/files/CopyLayerFile.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

[[noreturn]] void FailToCopy(const QString& original)
{
    throw RunTimeError(
        ErrorNumber::DatabaseFailure,
        QCoreApplication::translate(
            "MapCopy",
            "A temporary copy of \"%1\" cannot be made in the folder \"%2\". Make room there, or set TMPDIR "
            "to "
            "another folder.")
            .arg(QFileInfo(original).fileName(), QDir::toNativeSeparators(QDir::tempPath())));
}

} // namespace

MapCopy::MapCopy(const QString& path)
{
    const QString original = QFileInfo(path).absoluteFilePath();
    if (!m_folder.isValid())
        FailToCopy(original);
    const QString copy = m_folder.filePath(QStringLiteral("copy.orvane"));
    try {
        CopyLayerFile(original, copy);
    } catch (const RunTimeError& error) {
        // An error of the copy names a file that the user does not know.
        if (error.Description().contains(QDir::toNativeSeparators(copy)))
            FailToCopy(original);
        throw;
    }
    m_document = MapDocument::OpenCopy(copy, original);
}

MapCopy::~MapCopy() = default;

} // namespace Orvane
