// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>

namespace Orvane {

/// Converts one kind of property value to the text that the user sees, and that text back to the value. Both
/// directions use the language that is shown, so a translated text can be read back too. Null is "various".
///
/// Has no state. Errors that the host's conversions raise are passed on unchanged.
class IUITranslator
{
public:
    virtual ~IUITranslator() = default;
    IUITranslator(const IUITranslator&) = delete;
    IUITranslator& operator=(const IUITranslator&) = delete;

    /// The text to show for a value. Raises 6 or 13 if a number is needed and the value is not one.
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
