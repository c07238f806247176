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

namespace {

void CopyAll(ILayerStore& map, ILayerStore& startup)
{
    Transaction transaction(startup);
    SchemeTransfer transfer(map, startup);
    transfer.AddMissingLayers();
    transfer.CopySchemes();
    transaction.Commit();
}

} // namespace

void Save(ILayerStore& map, const QString& startupFile)
{
    LayerSchemes(map).Current(); // creates the first scheme
    QDir().mkpath(QFileInfo(startupFile).absolutePath());
    if (QFile::exists(startupFile))
        return CopyAll(map, *LayerStores::Open(startupFile));
    LayerStores::Make(startupFile, IfExists::Refuse, [&map](std::unique_ptr<ILayerStore> startup) {
        CopyAll(map, *startup);
    });
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
