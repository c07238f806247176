// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// A scale as the user reads it: "1:2,200,000", rounded as RoundedScale does, its digits grouped by the
/// locale. denominator: above 0.
QString ScaleText(double denominator);

} // namespace Orvane
