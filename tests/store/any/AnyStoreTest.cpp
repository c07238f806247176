// SPDX-License-Identifier: MIT
#include "store/any/AnyStoreTest.h"

namespace Orvane::Testing {

std::unique_ptr<ILayerStore> AnyStoreTest::NewStore(const StoreOptions& options)
{
    return m_maker.Create(m_maker.PlaceOf(QStringLiteral("map.ovl")), options);
}

QString AnyStoreTest::MadeStore(int layerCount)
{
    const auto store = NewStore();
    AddLayers(*store, layerCount);
    return store->Path();
}

std::unique_ptr<ILayerStore>
AnyStoreTest::Opened(const QString& place, OpenMode mode, const StoreOptions& options) const
{
    return m_maker.Open(place, mode, options);
}

std::unique_ptr<Stranger> AnyStoreTest::OtherProgram(const ILayerStore& store) const
{
    return m_maker.OtherProgram(store.Path());
}

} // namespace Orvane::Testing
