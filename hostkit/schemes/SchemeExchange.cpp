// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeExchange.h"

#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeTables.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QSet>

#include <algorithm>

namespace Orvane::SchemeExchange {

namespace {

SchemeDocument::Layer LayerAt(const IRecordset& row, int position)
{
    SchemeDocument::Layer layer;
    layer.identity.id = position;
    const Value code = row.Field("Code");
    if (!code.IsNull() && ToDouble(code) >= 0)
        layer.identity.code = ToDouble(code);
    const Value name = row.Field("Name");
    layer.identity.name = ToTextOrNone(name);
    for (std::size_t column = 0; column < SchemeColumns::Count; ++column)
        layer.values.at(column) = row.Field(SchemeColumns::All.at(column).name);
    return layer;
}

// From the layer in the map to the layer in the document. If two layers of the document match one in the map,
// the first is used.
QHash<qint32, qint32>
Matches(const std::vector<LayerIdentity>& present, const SchemeDocument& scheme, SchemeImport& report)
{
    std::vector<LayerIdentity> wanted;
    for (const SchemeDocument::Layer& layer : scheme.layers)
        wanted.push_back(layer.identity);
    const QHash<qint32, qint32> matches = MatchLayers(wanted, present);
    QHash<qint32, qint32> byLayerID;
    for (const LayerIdentity& layer : wanted) {
        const auto match = matches.constFind(layer.id);
        if (match == matches.constEnd() || byLayerID.contains(*match))
            report.onlyInFile << layer.name;
        else
            byLayerID.insert(*match, layer.id);
    }
    return byLayerID;
}

QSet<qint32> ListedLayers(ILayerStore& map)
{
    QSet<qint32> layerIDs;
    const auto rows = map.OpenQuery(QStringLiteral("SELECT LayerID FROM Layers WHERE Code > -2"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (const std::optional<qint32> layerID = Int32In(rows->Field("LayerID")))
            layerIDs.insert(*layerID);
    }
    return layerIDs;
}

// The scheme of that name, without values; it is created if it is missing.
qint32 EmptyScheme(ILayerStore& map, const QString& name)
{
    SchemeTables tables(map);
    const qint32 known = tables.IDOf(name);
    if (known == SchemeTables::NoScheme)
        return tables.Insert(name);
    tables.DropValues(known);
    return known;
}

// Values that are missing in the document are taken from the layer.
SchemeDocument::Values Completed(ILayerStore& map, qint32 layerID, SchemeDocument::Values values)
{
    const bool saysAll
        = std::none_of(values.begin(), values.end(), [](const Value& value) { return value.IsEmpty(); });
    if (saysAll)
        return values;
    const auto layer = map.OpenQuery(QStringLiteral("SELECT * FROM Layers WHERE LayerID = ?1"), {layerID});
    for (std::size_t column = 0; column < values.size(); ++column) {
        if (values.at(column).IsEmpty())
            values.at(column) = layer->Field(SchemeColumns::All.at(column).name);
    }
    return values;
}

void StoreValues(
    ILayerStore& map, qint32 schemeID, const QHash<qint32, qint32>& byLayerID, const SchemeDocument& scheme)
{
    const QString insertion
        = QStringLiteral("INSERT INTO LayerSchemeValues (LayerID, SchemeID, %1) VALUES (?1, ?2, %2)")
              .arg(SchemeColumns::List(), SchemeColumns::Parameters(3));
    qsizetype stored = 0;
    for (auto match = byLayerID.begin(); match != byLayerID.end(); ++match) {
        map.AskWatcher(double(++stored) / double(byLayerID.size()));
        std::vector<Value> row{match.key(), schemeID};
        const SchemeDocument::Values values
            = Completed(map, match.key(), scheme.layers.at(std::size_t(match.value())).values);
        row.insert(row.end(), values.begin(), values.end());
        map.Execute(insertion, row);
    }
}

std::unique_ptr<IRecordset> SavedLayers(ILayerStore& map, qint32 schemeID)
{
    return map.OpenQuery(
        QStringLiteral("SELECT Layers.LayerID, Layers.Code, Layers.Name, %1 FROM LayerSchemeValues, Layers"
                       " WHERE SchemeID = ?1 AND Layers.LayerID = LayerSchemeValues.LayerID"
                       " ORDER BY Layers.LayerID")
            .arg(SchemeColumns::SavedList()),
        {schemeID});
}

double SavedCount(ILayerStore& map, qint32 schemeID)
{
    return ToDouble(
        map.OpenQuery(
               QStringLiteral("SELECT count(*) AS Count FROM LayerSchemeValues WHERE SchemeID = ?1"),
               {schemeID})
            ->Field("Count"));
}

} // namespace

SchemeDocument Export(ILayerStore& map, const QString& schemeName)
{
    const qint32 schemeID = LayerSchemes(map).IDOf(schemeName);
    SchemeDocument document;
    document.name = schemeName;
    const auto rows = SavedLayers(map, schemeID);
    for (; !rows->AtEOF(); rows->MoveNext())
        document.layers.push_back(LayerAt(*rows, int(document.layers.size())));
    return document;
}

void ExportTo(QIODevice& text, ILayerStore& map, const QString& schemeName)
{
    const qint32 schemeID = LayerSchemes(map).IDOf(schemeName);
    const double count = SavedCount(map, schemeID);
    SchemeDocument::Writer writer(text);
    writer.Begin(schemeName);
    const auto rows = SavedLayers(map, schemeID);
    for (int position = 0; !rows->AtEOF(); rows->MoveNext()) {
        writer.Add(LayerAt(*rows, position));
        map.AskWatcher(++position / count);
    }
    writer.End();
}

SchemeImport Import(ILayerStore& map, const SchemeDocument& scheme)
{
    Transaction transaction(map);
    LayerSchemes(map).Current(); // creates the first scheme
    const std::vector<LayerIdentity> present = IdentitiesOf(map);
    SchemeImport report;
    report.name = scheme.name;
    const QHash<qint32, qint32> byLayerID = Matches(present, scheme, report);
    StoreValues(map, EmptyScheme(map, scheme.name), byLayerID, scheme);
    const QSet<qint32> listed = ListedLayers(map);
    for (const LayerIdentity& layer : present) {
        if (listed.contains(layer.id) && !byLayerID.contains(layer.id))
            report.onlyInMap << layer.name;
    }
    report.matched = byLayerID.size();
    transaction.Commit();
    return report;
}

} // namespace Orvane::SchemeExchange
