// SPDX-License-Identifier: MIT
#include "ovctrls/PropertyBag.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

Value ToValue(const QVariant& stored)
{
    if (stored.userType() == QMetaType::Bool)
        return stored.toBool();
    return stored.toString();
}

// A settings file returns booleans as words.
bool IsWord(const QVariant& stored, QLatin1String word)
{
    return stored.toString().compare(word, Qt::CaseInsensitive) == 0;
}

} // namespace

void PropertyBag::WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue)
{
    if (value == defaultValue)
        m_contents.remove(key);
    else
        m_contents.insert(key, value);
}

qint32 PropertyBag::ReadLong(const QString& key, qint32 defaultValue) const
{
    return Contains(key) ? ToInt32(ToValue(m_contents.value(key))) : defaultValue;
}

bool PropertyBag::ReadBoolean(const QString& key, bool defaultValue) const
{
    if (!Contains(key))
        return defaultValue;
    const QVariant stored = m_contents.value(key);
    if (IsWord(stored, QLatin1String("true")))
        return true;
    return !IsWord(stored, QLatin1String("false")) && ToBoolean(ToValue(stored));
}

QFont PropertyBag::ReadFont(const QString& key, const QFont& defaultValue) const
{
    if (!Contains(key))
        return defaultValue;
    const QVariant stored = m_contents.value(key);
    QFont font;
    if (stored.userType() == QMetaType::QFont)
        return stored.value<QFont>();
    if (stored.userType() != QMetaType::QString || !font.fromString(stored.toString()))
        throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
    return font;
}

} // namespace Orvane
