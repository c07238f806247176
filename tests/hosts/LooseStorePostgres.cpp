// SPDX-License-Identifier: MIT
#include "hosts/LooseStore.h"
#include "store/ILayerStore.h"
#include "store/any/StoreMaker.h"

namespace Orvane::Testing {

// The server then leaves out what keeps references whole.
std::unique_ptr<ILayerStore> NewLooseStore()
{
    auto store = StoreMaker().CreateNameless();
    store->Execute(QStringLiteral("SET session_replication_role = replica"));
    return store;
}

} // namespace Orvane::Testing
