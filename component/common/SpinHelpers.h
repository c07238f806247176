// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ValueConversions.h>

#include <QString>

#include <algorithm>

namespace Orvane {

/// Makes a spin control agree with the text next to it. A numeric text, clamped to the spin's MinValue and
/// MaxValue, becomes the spin's Value if it differs. Any other text is replaced by the spin's Value. The text
/// itself is not clamped.
///
/// Spin: MinValue(), MaxValue(), Value(), SetValue(value), in single precision. TextControl: text() and
/// setText(text), as in QLineEdit. A number is written with "." in every locale.
template <typename Spin, typename TextControl> void SynchroniseSpin(Spin& spin, TextControl& text)
{
    const auto number = NumberInText(text.text());
    if (!number) {
        text.setText(ToText(Value(float(spin.Value()))));
        return;
    }
    // Not std::clamp, which must not be called with a minimum above the maximum.
    const double clamped = std::min(std::max(*number, double(spin.MinValue())), double(spin.MaxValue()));
    if (float(clamped) != float(spin.Value()))
        spin.SetValue(float(clamped));
}

} // namespace Orvane
