// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <vector>

namespace Orvane {

class LayerNames;
class ILayerStore;
struct LayerDeletion;

/// Creates and deletes the rows of layers.
class LayerFactory
{
    Q_DECLARE_TR_FUNCTIONS(LayerFactory)

public:
    /// The draw priority of a new layer: the middle of 1 (highest) to 255.
    static constexpr qint16 DefaultPriority = 128;

    /// Neither is owned; both outlive this object.
    LayerFactory(ILayerStore& database, LayerNames& names) : m_database(database), m_names(names) { }

    /// Stores a new layer and returns its ID. The layer is named "New layer" or, if that is taken, "New layer
    /// 2" and so on, and has the lowest free code from 0 up. It is visible, selectable, black, hollow and
    /// drawn at every scale.
    qint32 Create();

    /// Removes the layer, its group memberships and its values in all schemes, in one transaction. Does
    /// nothing if the layer does not exist.
    void Delete(qint32 layerID);

    /// Removes all these layers in the same way, in one transaction.
    void Delete(const std::vector<qint32>& layerIDs);

    /// What is removed when the layer is deleted.
    LayerDeletion WhatGoes(qint32 layerID);
    /// What is removed when all these layers are deleted.
    LayerDeletion WhatGoes(const std::vector<qint32>& layerIDs);

    /// True when the layer exists and is not a system layer.
    bool CanDelete(qint32 layerID);
    /// Those of the layers for which that is true, in the same order.
    std::vector<qint32> Deletable(const std::vector<qint32>& layerIDs);

    /// True when a layer has that code.
    bool IsCodeAssigned(qint16 code);

private:
    QString UnusedName();
    static QString NewName(int number);
    void Insert(qint32 layerID, const QString& name);

    ILayerStore& m_database;
    LayerNames& m_names;
};

} // namespace Orvane
