// SPDX-License-Identifier: MIT
#include "shell/map/LayerCreation.h"

#include "hostkit/StandardClient.h"
#include "mapkit/common/Guard.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/EmptyLayer.h"
#include "mapkit/document/MapDocument.h"
#include "messages/NameInText.h"
#include "shell/dialogs/NewLayerDialog.h"
#include "shell/map/DataImport.h"
#include "shell/map/FoundLayers.h"
#include "shell/map/ImportPlan.h"
#include "shell/window/RunWithProgress.h"
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
    if (document.FilePath().isEmpty())
        return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
            .filePath(QStringLiteral("layers.gpkg"));
    const QFileInfo map(document.FilePath());
    return map.absoluteDir().filePath(map.completeBaseName() + QLatin1String("-layers.gpkg"));
}

// As for data that are opened, with the columns that are guessed for tables.
LayerOffer OfferOf(const QString& path)
{
    Progress progress;
    const FoundData found = WithTablesAsLayers(LookInto({path}, progress), progress);
    LayerOffer offer;
    offer.problems.reserve(qsizetype(found.problems.size()));
    for (const DataProblem& problem : found.problems)
        offer.problems << problem.text;
    offer.layers.reserve(LayerCount(found));
    for (const FoundData::Source& source : found.sources) {
        for (const SourceLayer& layer : source.layers)
            offer.layers.push_back({source.path, layer, LayerTitle(source.path, layer)});
    }
    return offer;
}

} // namespace

qint32 LayerCreation::Ask(QWidget* owner)
{
    NewLayerDialog dialog(DataFileOf(m_document), OfferOf, owner);
    while (dialog.exec() == QDialog::Accepted) {
        qint32 layerID = NoLayer;
        if (Guard(&dialog, [&] { layerID = Make(dialog, owner); }))
            return layerID;
    }
    return NoLayer;
}

qint32 LayerCreation::Make(const NewLayerDialog& wishes, QWidget* owner)
{
    const bool isEmpty = wishes.IsEmptyLayer();
    const ImportPlan plan = isEmpty ? ImportPlan() : PlanFor(wishes.Source(), owner);
    qint32 layerID = NoLayer;
    m_client.RecordStep([&] {
        Transaction transaction(m_document.Database());
        layerID = isEmpty ? MakeEmpty(wishes) : MakeFromSource(plan, wishes.Name());
        transaction.Commit();
        return tr("Create \"%1\"").arg(NameInStep(wishes.Name()));
    });
    if (!isEmpty && m_questions.tell)
        m_questions.tell(plan);
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

ImportPlan LayerCreation::PlanFor(const OfferedLayer& offered, QWidget* owner) const
{
    FoundData data;
    data.sources.push_back({offered.path, {offered.layer}});
    ImportPlan plan = ReadOrGiveUp(
        owner, tr("Opening map data"), [data, target = TargetOf(m_document)](Progress& progress) {
            return PlanImport(data, target, progress);
        });
    if (m_questions.settle)
        m_questions.settle(plan, owner);
    return plan;
}

qint32 LayerCreation::MakeFromSource(const ImportPlan& plan, const QString& name)
{
    const FoundData::Source& source = plan.data.sources.at(0);
    if (m_document.System().isEmpty())
        m_document.SetSystem(SystemFor(m_document, plan.data));
    NewLayer layer = LayerFor(source.path, source.layers.at(0), m_document.Sources().size());
    layer.name = name;
    return m_document.AddLayer(layer);
}

} // namespace Orvane
