// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/EditorFixture.h"

namespace Orvane::Testing {

/// The property panel of an open editor, with Roads selected.
class Panel : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        host.AddLayer({.id = 5, .name = "Scaled", .minVisScale = 10000.0, .maxVisScale = 20000.0});
        host.AddLayer({.id = 6, .name = "Low", .minVisScale = 0.0, .maxVisScale = 5000.0});
        Open();
        ClickLayer("Roads");
    }

    void SelectTransport()
    {
        ClickTab(1);
        ClickGroup("Transport");
    }

    std::vector<int> StatesOfClicks(const char* box, int clicks)
    {
        std::vector<int> states;
        for (; clicks > 0; --clicks) {
            Click(box);
            states.push_back(CheckState(box));
        }
        return states;
    }
};

} // namespace Orvane::Testing
