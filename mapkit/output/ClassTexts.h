// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace Orvane {

class Classification;

/// The limits of each class as text, "10.5 – 20", in the user's language, the lowest class first: with as
/// many decimals as the narrowest class needs, the same for all.
std::vector<QString> ClassTexts(const Classification& classes);

} // namespace Orvane
