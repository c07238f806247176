// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

/// The tabs of the strip tsLists, numbered from 1 in their order.
enum class ListTab {
    Groups = 1,
    Layers = 2,
    Schemes = 3,
};

} // namespace Orvane
