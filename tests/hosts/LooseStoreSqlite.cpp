// SPDX-License-Identifier: MIT
#include "hosts/LooseStore.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

namespace Orvane::Testing {

std::unique_ptr<ILayerStore> NewLooseStore()
{
    auto store = LayerStores::CreateInMemory();
    store->Execute(QStringLiteral("PRAGMA foreign_keys = OFF"));
    return store;
}

} // namespace Orvane::Testing
