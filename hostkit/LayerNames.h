// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace Orvane {

class ILayerDatabase;

/// The names of all layers, read by one query at the first question and kept in step by whoever renames,
/// creates or deletes a layer.
class LayerNames
{
public:
    /// database: not owned; outlives this object.
    explicit LayerNames(ILayerDatabase& database) : m_database(database) { }

    /// The layer's name; empty for a layer that does not exist. A layer that was added behind this object's
    /// back is read when it is first asked for.
    QString Name(qint32 layerID);

    /// The names of all layers, each once.
    QSet<QString> All();

    /// The layer has that name now.
    void Set(qint32 layerID, const QString& name);
    /// The layer is gone.
    void Remove(qint32 layerID);
    /// Forgets all names: the next question reads them anew.
    void Invalidate();

private:
    void Load();
    QString ReadOne(qint32 layerID);

    ILayerDatabase& m_database;
    QHash<qint32, QString> m_names;
    bool m_loaded = false;
};

} // namespace Orvane
