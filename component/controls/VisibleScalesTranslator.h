// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/IUITranslator.h"

namespace Orvane {

/// Scale limits: indices 0 to 256 of the scale table of the host's shell services, shown as "1:50000". Both
/// ends, 0 and 256, mean "no limit" and show the same text, which is always read back as 0.
class VisibleScalesTranslator : public IUITranslator
{
public:
    /// "various" for Null, "dont care" for 0 and 256, else "1:" and the denominator of the 32-bit index.
    QString toString(const Value& value) const;

    /// Null, the 16-bit integer 0, or the 32-bit index of the denominator that starts at the third character.
    Value FromString(const QString& text) const;

private:
    QString IUITranslator_toString(const Value& value) const override { return toString(value); }
    Value IUITranslator_FromString(const QString& text) const override { return FromString(text); }
};

} // namespace Orvane
