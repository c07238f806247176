// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane::Testing {

/// A host that can hide no layer: a redraw puts the mode of the first layer back.
class CorrectingClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    MemoryHost* corrected = nullptr; ///< not owned; nullptr: nothing is put back
    bool raises = false; ///< after each redraw

private:
    void IStyleEditorClient_RedrawMap() override
    {
        ForwardingClient::IStyleEditorClient_RedrawMap();
        if (corrected)
            corrected->SetLayerColumn(1, "OverrideMode", qint32(0));
        if (raises)
            throw RunTimeError(ErrorNumber::DatabaseLocked, "not taken");
    }
};

} // namespace Orvane::Testing
