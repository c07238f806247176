// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/Component.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

namespace Orvane {

/// What the host's application object implements besides IStyleEditorClient, or nullptr: without a host, when
/// it does not, and when the host was built with a contract that is older than the interface.
template <typename Interface> Interface* HostInterface()
{
    if (!HasClient() || Component::Get().HostContract().minor < Interface::ContractMinor)
        return nullptr;
    return dynamic_cast<Interface*>(&Client());
}

} // namespace Orvane
