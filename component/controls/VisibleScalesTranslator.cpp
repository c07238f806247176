// SPDX-License-Identifier: MIT
#include "component/controls/VisibleScalesTranslator.h"

#include "component/common/Component.h"
#include "component/common/Messages.h"

#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

constexpr qint32 noMinimum = 0;
constexpr qint32 noMaximum = 256;
constexpr qsizetype prefixLength = 2; // of "1:", even if a translation has changed it

} // namespace

QString VisibleScalesTranslator::toString(const Value& value) const
{
    if (value.IsNull())
        return TranslateMsg("various");
    if (ValuesEqual(value, noMinimum) || ValuesEqual(value, noMaximum))
        return TranslateMsg("dont care");
    return TranslateMsg("1:^1", ShellServices().ScaleFromIndex(ToInt32(value)));
}

Value VisibleScalesTranslator::FromString(const QString& text) const
{
    if (text == TranslateMsg("various"))
        return Value::Null();
    if (text == TranslateMsg("dont care"))
        return qint16(noMinimum);
    const qint32 denominator = ToInt32(text.mid(prefixLength));
    return ShellServices().IndexFromScale(denominator);
}

} // namespace Orvane
