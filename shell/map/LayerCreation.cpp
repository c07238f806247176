// SPDX-License-Identifier: MIT
#include "shell/map/LayerCreation.h"

#include "hostkit/StandardClient.h"
#include "mapkit/common/Guard.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemGuess.h"
#include "mapkit/data/EmptyLayer.h"
#include "mapkit/document/MapDocument.h"
#include "messages/NameInText.h"
#include "shell/dialogs/NewLayerDialog.h"
#include "shell/map/DataImport.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Orvane {

namespace {

constexpr auto SystemOfEmptyMap = "EPSG:3857"; // suits any place

// Beside the map, so that both are moved together.
QString DataFileOf(const MapDocument& document)
{
    if (document.Path().isEmpty())
        return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
            .filePath(QStringLiteral("layers.gpkg"));
    const QFileInfo map(document.Path());
    return map.absoluteDir().filePath(map.completeBaseName() + QLatin1String("-layers.gpkg"));
}

} // namespace

qint32 LayerCreation::Ask(QWidget* owner)
{
    NewLayerDialog dialog(DataFileOf(m_document), owner);
    while (dialog.exec() == QDialog::Accepted) {
        qint32 layerID = NoLayer;
        if (Guard(&dialog, [&] { layerID = Make(dialog); }))
            return layerID;
    }
    return NoLayer;
}

qint32 LayerCreation::Make(const NewLayerDialog& wishes)
{
    qint32 layerID = NoLayer;
    m_client.RecordStep([&] {
        Transaction transaction(m_document.Database());
        layerID = wishes.IsEmptyLayer() ? MakeEmpty(wishes) : MakeFromSource(wishes);
        transaction.Commit();
        return tr("Create \"%1\"").arg(NameInStep(wishes.Name()));
    });
    return layerID;
}

// The map is written first, so that no data file remains when the map cannot be written.
qint32 LayerCreation::MakeEmpty(const NewLayerDialog& wishes)
{
    const QString known = m_document.System();
    const QString system = known.isEmpty() ? QString::fromLatin1(SystemOfEmptyMap) : known;
    m_document.SetSystem(system);
    const QString table = CreateEmptyLayer(wishes.File(), wishes.Name(), wishes.Kind(), system);
    SourceLayer made;
    made.name = table;
    made.kind = wishes.Kind();
    NewLayer layer = LayerFor(wishes.File(), made, m_document.Sources().size());
    layer.name = wishes.Name();
    return m_document.AddLayer(layer);
}

qint32 LayerCreation::MakeFromSource(const NewLayerDialog& wishes)
{
    SourceLayer source = wishes.Source();
    if (source.system.isEmpty())
        source.chosenSystem = GuessSystem(source.extent, {m_document.System(), {}});
    if (m_document.System().isEmpty())
        m_document.SetSystem(SystemToShow({{SystemOf(source), source.extent}}));
    NewLayer layer = LayerFor(wishes.File(), source, m_document.Sources().size());
    layer.name = wishes.Name();
    return m_document.AddLayer(layer);
}

} // namespace Orvane
