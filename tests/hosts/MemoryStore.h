// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/LayerSpecs.h"

#include <OrvaneShellLib/ILayerDatabase.h>

#include <QStringList>

#include <memory>
#include <vector>

namespace Orvane {
class ILayerStore;
}

namespace Orvane::Testing {

/// A layer database that ends with the test, with the few operations that set up a test. Rows may refer to
/// rows that do not exist.
class MemoryStore
{
public:
    MemoryStore();
    ~MemoryStore();

    ILayerDatabase& Database();

    void AddLayer(const LayerSpec& layer);
    /// Adds the group without its members.
    void AddGroup(const GroupSpec& group);
    void AddMember(qint32 groupID, qint32 layerID, qint32 ordering);
    /// Removes the rows whose column has that value.
    void RemoveRows(const QString& table, const QString& column, qint32 value);

    void SetLayerColumn(qint32 layerID, const char* column, const Value& value);
    void SetGroupColumn(qint32 groupID, const char* column, const Value& value);
    /// Empty when there is no such row.
    Value LayerColumn(qint32 layerID, const char* column);
    Value GroupColumn(qint32 groupID, const char* column);
    /// The greatest number in a column of Layers, 0 when there is no layer.
    qint32 GreatestInLayers(const QString& column);
    bool HasCode(qint32 code);

private:
    void Insert(const QString& table, const QStringList& columns, const std::vector<Value>& values);
    void
    SetColumn(const QString& table, const QString& key, qint32 id, const char* column, const Value& value);
    Value FirstValue(const QString& sql, const std::vector<Value>& values, const char* column);

    std::unique_ptr<ILayerStore> m_database;
};

} // namespace Orvane::Testing
