// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>

namespace Orvane {

/// Turns one kind of property value into the text that a person sees, and that text back into the value. Both
/// ways speak the language that is shown, so a translated text reads back too. Null is "various".
///
/// Holds no state. What the host's conversions raise passes through unchanged.
class IUITranslator
{
public:
    virtual ~IUITranslator() = default;
    IUITranslator(const IUITranslator&) = delete;
    IUITranslator& operator=(const IUITranslator&) = delete;

    /// The text to show for a value. Raises 6 or 13 for a value that is no number where one is needed.
    QString toString(const Value& value) const { return IUITranslator_toString(value); }

    /// The value that a text stands for; Null for "various". Raises 13 (type mismatch) for a text that holds
    /// no number, and 6 (overflow) for a number outside the value's type.
    Value FromString(const QString& text) const { return IUITranslator_FromString(text); }

protected:
    IUITranslator() = default;

private:
    virtual QString IUITranslator_toString(const Value& value) const = 0;
    virtual Value IUITranslator_FromString(const QString& text) const = 0;
};

} // namespace Orvane
