// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/IUITranslator.h"

namespace Orvane {

/// Draw priorities: 1 (highest) to 255 (lowest), shown as plain digits with both ends named.
class DrawPrioritiesTranslator : public IUITranslator
{
public:
    DrawPrioritiesTranslator() = default;

    /// "various" for Null, "1 (highest)", "255 (lowest)", else the plain digits.
    QString toString(const Value& value) const;

    /// Null or a 16-bit integer.
    Value FromString(const QString& text) const;

private:
    QString IUITranslator_toString(const Value& value) const override { return toString(value); }
    Value IUITranslator_FromString(const QString& text) const override { return FromString(text); }
};

} // namespace Orvane
