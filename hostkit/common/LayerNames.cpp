// SPDX-License-Identifier: MIT
#include "hostkit/common/LayerNames.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

constexpr int MostNamesOneByOne = 100; // all are read by one query

QString NameIn(const IRecordset& layers)
{
    const Value name = layers.Field("Name");
    return ToTextOrNone(name);
}

} // namespace

QString LayerNames::Name(qint32 layerID)
{
    Load();
    const auto known = m_names.constFind(layerID);
    return known != m_names.constEnd() ? *known : ReadOne(layerID);
}

QSet<QString> LayerNames::All()
{
    Load();
    return QSet<QString>(m_names.cbegin(), m_names.cend());
}

void LayerNames::Set(qint32 layerID, const QString& name)
{
    if (m_loaded)
        m_names.insert(layerID, name);
}

void LayerNames::Remove(qint32 layerID)
{
    m_names.remove(layerID);
}

void LayerNames::ReadAgain(const QSet<qint32>& layerIDs)
{
    if (layerIDs.size() > MostNamesOneByOne)
        Invalidate();
    if (!m_loaded)
        return;
    for (const qint32 layerID : layerIDs) {
        m_names.remove(layerID);
        ReadOne(layerID);
    }
}

void LayerNames::Invalidate()
{
    m_names.clear();
    m_loaded = false;
}

void LayerNames::Load()
{
    if (m_loaded)
        return;
    QHash<qint32, QString> names;
    const auto layers = m_database.OpenRecordset(QStringLiteral("SELECT LayerID, Name FROM Layers"));
    for (; !layers->AtEOF(); layers->MoveNext()) {
        // One row with an ID beyond 32 bits must not hide the names of all others.
        if (const std::optional<qint32> layerID = Int32In(layers->Field("LayerID")))
            names.insert(*layerID, NameIn(*layers));
    }
    m_names = std::move(names);
    m_loaded = true;
}

QString LayerNames::ReadOne(qint32 layerID)
{
    const auto layer
        = m_database.OpenRecordset(QStringLiteral("SELECT Name FROM Layers WHERE LayerID = %1").arg(layerID));
    if (layer->AtEOF())
        return {};
    return *m_names.insert(layerID, NameIn(*layer));
}

} // namespace Orvane
