// SPDX-License-Identifier: MIT
#pragma once

#include "store/ILayerStore.h"
#include "support/Errors.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QString>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace Orvane::Testing {

/// What tests do with a layer store of any kind.
class StoreActs : public testing::Test
{
protected:
    static void AddLayer(ILayerStore& database, qint32 id, const QString& name);
    /// Adds the layers 1 to count, "Layer 1" and so on.
    static void AddLayers(ILayerStore& database, int count);
    static void AddGroup(ILayerStore& database, qint32 id, const QString& name, qint32 ordering);
    static void AddMember(ILayerStore& database, qint32 group, qint32 layer, qint32 ordering);
    static std::unique_ptr<IRecordset> SeekLayer(ILayerStore& database, qint32 id);
    static void SetCode(ILayerStore& database, qint32 id, qint32 code);
    /// Sets a code, adds layer 9 to group 5 in an inner transaction, and deletes layer 2.
    static void ChangeInTransactions(ILayerStore& database);
    static QString NameOfLayer(ILayerStore& database, qint32 id);
    static std::vector<qint32> Column(ILayerStore& database, const QString& sql, const char* name);

    /// Options under which a lock is not waited for.
    static StoreOptions Impatient() { return {std::chrono::milliseconds(0)}; }
};

} // namespace Orvane::Testing
