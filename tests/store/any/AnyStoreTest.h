// SPDX-License-Identifier: MIT
#pragma once

#include "store/any/StoreActs.h"
#include "store/any/StoreDifferences.h"
#include "store/any/StoreMaker.h"

namespace Orvane::Testing {

/// Scenarios that hold for every kind of layer store. Each program that contains them has another kind.
class AnyStoreTest : public StoreActs
{
protected:
    void SetUp() override { SkipDifferences(); }

    /// A new store with empty tables, which others can open at its Path().
    std::unique_ptr<ILayerStore> NewStore(const StoreOptions& options = {});
    /// A new store with empty tables that nobody else opens.
    std::unique_ptr<ILayerStore> NamelessStore() { return m_maker.CreateNameless(); }
    /// The place of a new store with layers 1 to layerCount, closed again.
    QString MadeStore(int layerCount = 3);
    std::unique_ptr<ILayerStore>
    Opened(const QString& place, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {}) const;
    /// Another program that uses the store, which has a place.
    std::unique_ptr<Stranger> OtherProgram(const ILayerStore& store) const;

    StoreMaker m_maker;
};

} // namespace Orvane::Testing
