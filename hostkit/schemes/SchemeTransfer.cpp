// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeTransfer.h"

#include "hostkit/common/LayerRow.h"
#include "hostkit/schemes/LayerMatch.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "hostkit/schemes/SchemeTables.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"

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
    const std::vector<qint32> missing = MissingLayers();
    const std::vector<qint32> newIDs = LayerRow::FreeIDs(m_to, qsizetype(missing.size()));
    auto newID = newIDs.begin();
    KeyLists::ForEachBlock(missing, {}, [&](const QString& list, const std::vector<Value>& values) {
        const auto layers = m_from.OpenQuery(
            QStringLiteral("SELECT * FROM Layers WHERE LayerID IN %1 ORDER BY LayerID").arg(list), values);
        for (; !layers->AtEOF(); layers->MoveNext(), ++newID) {
            LayerRow(*layers).StoreAs(*newID, m_to);
            m_matches.insert(ToInt32(layers->Field("LayerID")), *newID);
        }
    });
}

std::vector<qint32> SchemeTransfer::MissingLayers()
{
    std::vector<qint32> missing;
    const auto layers = m_from.OpenQuery(QStringLiteral("SELECT LayerID FROM Layers ORDER BY LayerID"));
    for (; !layers->AtEOF(); layers->MoveNext()) {
        const std::optional<qint32> layerID = Int32In(layers->Field("LayerID"));
        if (layerID && !m_matches.contains(*layerID))
            missing.push_back(*layerID);
    }
    return missing;
}

void SchemeTransfer::CopySchemes()
{
    SchemeTables source(m_from);
    SchemeTables target(m_to);
    if (!source.HaveSchemes())
        return;
    const bool hasCurrent = target.HaveSchemes();
    target.Create();
    CopyValues(target.Replace(source.All()));
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

void SchemeTransfer::CopyValues(const QHash<qint32, qint32>& schemes)
{
    // Two layers of the source may match one layer of the target: the values of the first are kept.
    const QString insertion
        = QStringLiteral("INSERT INTO LayerSchemeValues (LayerID, SchemeID, %1) VALUES (?1, ?2, %2)"
                         " ON CONFLICT DO NOTHING")
              .arg(SchemeColumns::List(), SchemeColumns::Parameters(3));
    const auto rows = m_from.OpenQuery(QStringLiteral("SELECT * FROM LayerSchemeValues ORDER BY LayerID"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const std::optional<qint32> layerID = Int32In(rows->Field("LayerID"));
        const auto layer = layerID ? m_matches.constFind(*layerID) : m_matches.constEnd();
        const auto scheme
            = schemes.constFind(Int32In(rows->Field("SchemeID")).value_or(SchemeTables::NoScheme));
        if (layer == m_matches.constEnd() || scheme == schemes.constEnd())
            continue;
        std::vector<Value> values{*layer, *scheme};
        AppendSchemeColumns(values, *rows);
        m_to.Send(insertion, values);
    }
}

} // namespace Orvane
