// SPDX-License-Identifier: MIT
#include "component/dialog/place/ViewState.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"

#include <cmath>

namespace Orvane::Testing {

int FuzzViewState(const uint8_t* data, size_t size)
{
    const ViewState state = ViewState::FromText(TextIn(data, size));
    const ViewState again = ViewState::FromText(state.ToText());
    Require(again.tab == state.tab, "the tab is read as it was written");
    Require(again.size == state.size, "the size is read as it was written");
    if (!state.size)
        return 0;
    Require(again == state, "a state with a size is read as it was written");
    for (const float side : {state.size->width, state.size->height})
        Require(std::isfinite(side) && side > 0, "both sides are finite and above 0");
    return 0;
}

} // namespace Orvane::Testing
