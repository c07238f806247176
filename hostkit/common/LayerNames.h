// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace Orvane {

class ILayerDatabase;

/// The names of all layers, read in one query when first needed. Code that renames, creates or deletes a
/// layer must keep them up to date.
class LayerNames
{
public:
    /// database: not owned; outlives this object.
    explicit LayerNames(ILayerDatabase& database) : m_database(database) { }

    /// The layer's name; empty if the layer does not exist. A layer that was added without notifying this
    /// object is read when its name is first requested.
    QString Name(qint32 layerID);

    /// The same for a single layer: no other names are read.
    QString NameOfOne(qint32 layerID);

    /// The names of all layers, each once.
    QSet<QString> All();

    /// Records that the layer now has that name.
    void Set(qint32 layerID, const QString& name);
    /// Records that the layer was removed.
    void Remove(qint32 layerID);
    /// Records that the names of these layers were changed without notifying this object. A few are read by
    /// one query; many are all read again when next needed.
    void ReadAgain(const QSet<qint32>& layerIDs);
    /// Forgets all names: they are read again when next needed.
    void Invalidate();

private:
    void Load();
    QHash<qint32, QString> Read(const QString& condition);
    QString ReadOne(qint32 layerID);

    ILayerDatabase& m_database;
    QHash<qint32, QString> m_names;
    bool m_loaded = false;
};

} // namespace Orvane
