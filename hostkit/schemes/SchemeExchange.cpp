// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeExchange.h"

#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeTables.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QSet>
#include <QStringList>

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

// The scheme of that name, without values; it is created if it is missing.
qint32 EmptyScheme(ILayerStore& map, const SchemeHead& head)
{
    SchemeTables tables(map);
    qint32 schemeID = tables.IDOf(head.name);
    if (schemeID == SchemeTables::NoScheme)
        schemeID = tables.Insert(head.name);
    else
        tables.DropValues(schemeID);
    tables.SetHead(schemeID, head);
    return schemeID;
}

void UnsetOthers(SchemeDocument::Values& values, SchemeParts holds)
{
    for (std::size_t column = 0; column < values.size(); ++column) {
        if (!holds.testFlag(PartOf(SchemeColumns::All.at(column))))
            values.at(column) = Value::Null();
    }
}

// Those that are missing in the document are the layer's present ones. keys: the layer and the scheme.
void StoreLayer(ILayerStore& map, const std::vector<Value>& keys, const SchemeDocument::Values& values)
{
    std::vector<Value> row = keys;
    row.reserve(keys.size() + values.size());
    QStringList stored{QStringLiteral("?1"), QStringLiteral("?2")};
    bool saysAll = true;
    for (std::size_t column = 0; column < values.size(); ++column) {
        if (values.at(column).IsEmpty()) {
            stored << QLatin1String("Layers.") + QLatin1String(SchemeColumns::All.at(column).name);
            saysAll = false;
            continue;
        }
        row.push_back(values.at(column));
        stored << u'?' + QString::number(row.size());
    }
    const QString source = saysAll ? QStringLiteral("VALUES (%1)")
                                   : QStringLiteral("SELECT %1 FROM Layers WHERE LayerID = ?1");
    map.Send(
        QStringLiteral("INSERT INTO LayerSchemeValues (LayerID, SchemeID, %1) ").arg(SchemeColumns::List())
            + source.arg(stored.join(QLatin1String(", "))),
        row);
}

using Visitor = SchemeFile::Reader::Visitor;
using EachLayer = std::function<void(const Visitor& visitor)>;

LayerMatcher MatcherOf(ILayerStore& map, const EachLayer& each)
{
    LayerMatcher matcher;
    ForEachIdentity(map, [&](const LayerIdentity& layer) { matcher.AddTo(layer); });
    each([&](const SchemeDocument::Layer& layer, double done) {
        map.AskWatcher(done / 2);
        matcher.AddFrom(layer.identity);
    });
    matcher.Prepare();
    return matcher;
}

// Returns the layers of the map that got values. If two layers of the scheme match one in the map, the first
// is used.
QSet<qint32>
StoreValues(ILayerStore& map, const SchemeHead& head, const EachLayer& each, QStringList& onlyInScheme)
{
    const qint32 schemeID = EmptyScheme(map, head);
    const LayerMatcher matcher = MatcherOf(map, each);
    QSet<qint32> stored;
    each([&](const SchemeDocument::Layer& layer, double done) {
        map.AskWatcher((1 + done) / 2);
        const std::optional<qint32> layerID = matcher.Match(layer.identity);
        if (!layerID || stored.contains(*layerID)) {
            onlyInScheme << layer.identity.name;
            return;
        }
        stored.insert(*layerID);
        SchemeDocument::Values values = layer.values;
        UnsetOthers(values, head.holds);
        StoreLayer(map, {*layerID, schemeID}, values);
    });
    return stored;
}

// The names of listed layers without values.
QStringList OthersThan(const QSet<qint32>& stored, ILayerStore& map)
{
    QStringList names;
    const auto rows
        = map.OpenQuery(QStringLiteral("SELECT LayerID, Name FROM Layers WHERE Code > -2 ORDER BY LayerID"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const std::optional<qint32> layerID = Int32In(rows->Field("LayerID"));
        const Value name = rows->Field("Name");
        if (layerID && !stored.contains(*layerID))
            names << ToTextOrNone(name);
    }
    return names;
}

SchemeImport ImportLayers(ILayerStore& map, const SchemeHead& head, const EachLayer& each)
{
    Transaction transaction(map);
    LayerSchemes(map).Current(); // creates the first scheme
    SchemeImport report;
    report.name = head.name;
    const QSet<qint32> stored = StoreValues(map, head, each, report.onlyInFile);
    report.onlyInMap = OthersThan(stored, map);
    report.matched = stored.size();
    transaction.Commit();
    return report;
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

SchemeDetails DetailsOf(ILayerStore& map, const QString& name)
{
    return SchemeTables(map).DetailsOf(LayerSchemes(map).IDOf(name));
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
    const SchemeDetails scheme = DetailsOf(map, schemeName);
    SchemeDocument document{scheme, {}};
    const auto rows = SavedLayers(map, scheme.id);
    for (; !rows->AtEOF(); rows->MoveNext())
        document.layers.push_back(LayerAt(*rows, int(document.layers.size())));
    return document;
}

void ExportTo(QIODevice& text, ILayerStore& map, const QString& schemeName)
{
    const SchemeDetails scheme = DetailsOf(map, schemeName);
    const double count = SavedCount(map, scheme.id);
    SchemeDocument::Writer writer(text);
    writer.Begin(scheme);
    const auto rows = SavedLayers(map, scheme.id);
    for (int position = 0; !rows->AtEOF(); rows->MoveNext()) {
        writer.Add(LayerAt(*rows, position));
        map.AskWatcher(++position / count);
    }
    writer.End();
}

SchemeImport Import(ILayerStore& map, const SchemeDocument& scheme)
{
    return ImportLayers(map, scheme, [&scheme](const Visitor& visitor) {
        double read = 0;
        for (const SchemeDocument::Layer& layer : scheme.layers)
            visitor(layer, ++read / double(scheme.layers.size()));
    });
}

SchemeImport Import(ILayerStore& map, SchemeFile::Reader& file)
{
    return ImportLayers(map, file.Head(), [&file](const Visitor& visitor) { file.ForEachLayer(visitor); });
}

} // namespace Orvane::SchemeExchange
