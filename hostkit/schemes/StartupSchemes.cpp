// SPDX-License-Identifier: MIT
#include "hostkit/schemes/StartupSchemes.h"

#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeTransfer.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/Transaction.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Orvane::StartupSchemes {

void Save(ILayerStore& map, const QString& startupFile)
{
    LayerSchemes(map).Current(); // creates the first scheme
    QDir().mkpath(QFileInfo(startupFile).absolutePath());
    const auto startup
        = QFile::exists(startupFile) ? LayerStores::Open(startupFile) : LayerStores::Create(startupFile);
    Transaction transaction(*startup);
    SchemeTransfer transfer(map, *startup);
    transfer.AddMissingLayers();
    transfer.CopySchemes();
    transaction.Commit();
}

void Load(ILayerStore& map, const QString& startupFile)
{
    if (!QFile::exists(startupFile))
        return;
    const auto startup = LayerStores::Open(startupFile, OpenMode::ReadOnly);
    Transaction transaction(map);
    SchemeTransfer(*startup, map).CopySchemes();
    transaction.Commit();
}

} // namespace Orvane::StartupSchemes
