// SPDX-License-Identifier: MIT
#include "sweep/SweepFolder.h"

#include "hostkit/schemes/LayerSchemes.h"
#include "mapkit/document/MapDocument.h"
#include "store/ILayerStore.h"
#include "sweep/FolderState.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>
#include <QFile>

namespace Orvane::Testing {

namespace {

qint32 AddSweepLayer(MapDocument& map, const char* name, qint32 code, qint32 fill)
{
    NewLayer layer;
    layer.name = QLatin1String(name);
    layer.values.fillForeColor = fill;
    layer.values.outlineStyle = 15;
    const qint32 id = map.AddLayer(layer);
    map.Database().Execute(QStringLiteral("UPDATE Layers SET Code = ?2 WHERE LayerID = ?1"), {id, code});
    return id;
}

void FillSweepMap(MapDocument& map)
{
    const qint32 transport = map.AddGroup(QStringLiteral("Transport"), true);
    map.AddMember(transport, AddSweepLayer(map, "Roads", 11, 0x0000FF));
    map.AddMember(transport, AddSweepLayer(map, "Rivers", 12, 0xFF0000));
    const qint32 land = map.AddGroup(QStringLiteral("Land"), true);
    map.AddMember(land, AddSweepLayer(map, "Parcels", 13, 0x00FF00));
    map.SetSystem(QStringLiteral("EPSG:4326"));
    map.Database().Execute(
        QStringLiteral("CREATE TABLE %1 (Number INTEGER)").arg(QLatin1String(TableOfLaterEdits)));
    LayerSchemes schemes(map.Database());
    schemes.Create(QStringLiteral("Night"));
    map.Database().Execute(QStringLiteral("UPDATE Layers SET Color = 7, Visible = 0 WHERE LayerID < 3"));
    schemes.Create(QStringLiteral("Day"));
}

} // namespace

SweepFolder::SweepFolder()
{
    MapDocument::Make(m_original, IfExists::Refuse, FillSweepMap);
}

void SweepFolder::Reset() const
{
    QDir folder(m_run);
    folder.mkpath(QStringLiteral("."));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names)
        folder.remove(name);
    if (!QFile::copy(m_original, MapPath()))
        throw RunTimeError(1, QStringLiteral("The map cannot be copied to ") + MapPath());
}

void SweepFolder::Write(const char* name, const QByteArray& content) const
{
    QFile file(PathOf(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw RunTimeError(1, QStringLiteral("This file cannot be written: ") + PathOf(name));
}

} // namespace Orvane::Testing
