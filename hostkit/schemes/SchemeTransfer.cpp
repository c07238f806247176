// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeTransfer.h"

#include "hostkit/common/LayerRow.h"
#include "hostkit/schemes/LayerMatch.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "hostkit/schemes/SchemeTables.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <vector>

namespace Orvane {

namespace {

void AppendSchemeColumns(std::vector<Value>& values, const IRecordset& row)
{
    for (const LayerColumn& column : SchemeColumns::All)
        values.push_back(row.Field(column.name));
}

} // namespace

SchemeTransfer::SchemeTransfer(ILayerStore& from, ILayerStore& to)
    : m_from(from), m_to(to), m_matches(MatchLayers(from, to))
{
}

void SchemeTransfer::AddMissingLayers()
{
    const auto layers = m_from.OpenQuery(QStringLiteral("SELECT LayerID FROM Layers ORDER BY LayerID"));
    for (; !layers->AtEOF(); layers->MoveNext()) {
        const std::optional<qint32> layerID = Int32In(layers->Field("LayerID"));
        if (layerID && !m_matches.contains(*layerID))
            AddLayer(*layerID);
    }
}

void SchemeTransfer::CopySchemes()
{
    SchemeTables source(m_from);
    SchemeTables target(m_to);
    if (!source.HaveSchemes())
        return;
    const bool hasCurrent = target.HaveSchemes();
    target.Create();
    for (const SchemeDetails& scheme : source.All()) {
        qint32 newSchemeID = target.IDOf(scheme.name);
        if (newSchemeID == SchemeTables::NoScheme)
            newSchemeID = target.Insert(scheme.name);
        target.DropValues(newSchemeID);
        target.SetHead(newSchemeID, scheme);
        CopyValues(scheme.id, newSchemeID);
    }
    CopyOrder();
    if (!hasCurrent)
        target.MakeCurrent(target.IDOf(source.CurrentName()));
}

// The order of the source, if the user has given it one; what only the target has follows.
void SchemeTransfer::CopyOrder()
{
    const std::vector<SchemeDetails> schemes = LayerSchemes(m_from).All();
    const bool isOrdered = std::any_of(
        schemes.begin(), schemes.end(), [](const SchemeDetails& scheme) { return scheme.place.has_value(); });
    if (!isOrdered)
        return;
    LayerSchemes target(m_to);
    QStringList names;
    for (const SchemeDetails& scheme : schemes)
        names << scheme.name;
    for (const QString& name : target.Names()) {
        if (!names.contains(name))
            names << name;
    }
    target.SetOrder(names);
}

void SchemeTransfer::AddLayer(qint32 layerID)
{
    const auto layer = m_from.OpenQuery(QStringLiteral("SELECT * FROM Layers WHERE LayerID = ?1"), {layerID});
    m_matches.insert(layerID, LayerRow(*layer).StoreNew(m_to));
}

void SchemeTransfer::CopyValues(qint32 schemeID, qint32 newSchemeID)
{
    // Two layers of the source may match one layer of the target: the values of the first are kept.
    const QString insertion
        = QStringLiteral("INSERT INTO LayerSchemeValues (LayerID, SchemeID, %1) VALUES (?1, ?2, %2)"
                         " ON CONFLICT DO NOTHING")
              .arg(SchemeColumns::List(), SchemeColumns::Parameters(3));
    const auto rows
        = m_from.OpenQuery(QStringLiteral("SELECT * FROM LayerSchemeValues WHERE SchemeID = ?1"), {schemeID});
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const std::optional<qint32> layerID = Int32In(rows->Field("LayerID"));
        const auto match = layerID ? m_matches.constFind(*layerID) : m_matches.constEnd();
        if (match == m_matches.constEnd())
            continue;
        std::vector<Value> values{*match, newSchemeID};
        AppendSchemeColumns(values, *rows);
        m_to.Execute(insertion, values);
    }
}

} // namespace Orvane
