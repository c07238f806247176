// SPDX-License-Identifier: MIT
#include "shell/command/TemporaryMap.h"

#include "store/ILayerStore.h"
#include "store/StorePlace.h"
#include "store/opening/LayerStores.h"
#include "store/sqlite/files/CopyLayerFile.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QDir>

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
            .arg(StorePlace::FileNameOf(original), QDir::toNativeSeparators(QDir::tempPath())));
}

void CopyFromServer(const QString& place, const QString& path)
{
    StoreOptions options;
    options.answerTimeout = LayerStores::WholeMapTimeout;
    LayerStores::Open(place, OpenMode::ReadOnly, options)->CopyToFile(path);
}

} // namespace

TemporaryMap::TemporaryMap(const QString& map)
{
    const QString original = StorePlace::Canonical(map);
    if (!m_folder.isValid())
        FailToCopy(original);
    try {
        if (StorePlace::IsFile(original))
            CopyLayerFile(original, Path());
        else
            CopyFromServer(original, Path());
    } catch (const RunTimeError& error) {
        // An error of the copy names a file that the user does not know.
        if (error.Description().contains(QDir::toNativeSeparators(Path())))
            FailToCopy(original);
        throw;
    }
}

} // namespace Orvane
