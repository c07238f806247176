// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace Orvane {

class LayerNames;
class SqliteLayerDatabase;
struct LayerDeletion;

/// Creates and deletes layers' rows.
class LayerFactory
{
    Q_DECLARE_TR_FUNCTIONS(LayerFactory)

public:
    /// The draw priority of a new layer: the middle of 1 (highest) to 255.
    static constexpr qint16 DefaultPriority = 128;
    /// The code of a new layer when all codes from 0 to 32767 are taken.
    static constexpr qint16 NoCode = -1;

    /// Neither is owned; both outlive this object.
    LayerFactory(SqliteLayerDatabase& database, LayerNames& names) : m_database(database), m_names(names) { }

    /// Stores a new layer and returns its ID: named "New layer" or, where that is taken, "New layer 2" and so
    /// on, with the lowest free code from 0 on; visible, selectable, black, hollow, drawn at every scale.
    qint32 Create();

    /// Removes the layer, its memberships and its values in all schemes, in one transaction. A layer that
    /// does not exist changes nothing.
    void Delete(qint32 layerID);

    /// What goes when the layer is deleted.
    LayerDeletion WhatGoes(qint32 layerID);

    /// True when the layer exists and is no system layer.
    bool CanDelete(qint32 layerID);

    /// True when a layer has that code.
    bool IsCodeAssigned(qint16 code);

private:
    qint32 NextLayerID();
    qint16 LowestFreeCode();
    QString UnusedName();
    void Insert(qint32 layerID, const QString& name);

    SqliteLayerDatabase& m_database;
    LayerNames& m_names;
};

} // namespace Orvane
