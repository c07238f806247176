// SPDX-License-Identifier: MIT
#include "hostkit/common/LayerNames.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>

namespace Orvane {

namespace {

constexpr int MostNamesInOneList = 100; // more are read with those of all layers

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

QString LayerNames::NameOfOne(qint32 layerID)
{
    return m_loaded ? Name(layerID) : ReadOne(layerID);
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
    if (layerIDs.size() > MostNamesInOneList)
        Invalidate();
    if (!m_loaded)
        return;
    QStringList listed;
    for (const qint32 layerID : layerIDs) {
        m_names.remove(layerID);
        listed << QString::number(layerID);
    }
    if (!listed.isEmpty())
        m_names.insert(Read(QStringLiteral(" WHERE LayerID IN (%1)").arg(listed.join(QLatin1String(", ")))));
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
    m_names = Read({});
    m_loaded = true;
}

QHash<qint32, QString> LayerNames::Read(const QString& condition)
{
    QHash<qint32, QString> names;
    const auto layers
        = m_database.OpenRecordset(QStringLiteral("SELECT LayerID, Name FROM Layers") + condition);
    for (; !layers->AtEOF(); layers->MoveNext()) {
        // One row with an ID beyond 32 bits must not hide the names of all others.
        if (const std::optional<qint32> layerID = Int32In(layers->Field("LayerID")))
            names.insert(*layerID, NameIn(*layers));
    }
    return names;
}

QString LayerNames::ReadOne(qint32 layerID)
{
    const auto layer
        = m_database.OpenRecordset(QStringLiteral("SELECT Name FROM Layers WHERE LayerID = %1").arg(layerID));
    if (layer->AtEOF())
        return {};
    QString name = NameIn(*layer);
    if (m_loaded)
        m_names.insert(layerID, name);
    return name;
}

} // namespace Orvane
