// SPDX-License-Identifier: MIT
#include "store/copying/FittedValues.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Orvane {

namespace {

constexpr qsizetype MostNamed = 8;
constexpr qsizetype LongestShown = 40; // characters of a value

std::optional<Value> FittedWhole(double number)
{
    using Limits = std::numeric_limits<qint32>;
    const bool fits = number == std::floor(number) && number >= Limits::min() && number <= Limits::max();
    return fits ? std::optional(Value(qint32(number))) : std::nullopt;
}

std::optional<Value> FittedNumber(double number, StoreType type)
{
    switch (type) {
    case StoreType::Whole:
        return FittedWhole(number);
    case StoreType::Flag:
        return Value(number != 0);
    default:
        return Value(number);
    }
}

QString Shown(const Value& value)
{
    if (value.IsEmpty())
        return QStringLiteral("?");
    const QString text = ToTextOrNone(value);
    const QString start = text.size() > LongestShown ? text.left(LongestShown) + QChar(u'\u2026') : text;
    return value.IsText() ? u'"' + start + u'"' : start;
}

// By its key, or else by its first value.
QString RowShown(const StoreTable& table, const std::vector<Value>& row)
{
    QStringList parts;
    for (size_t i = 0; i < row.size(); ++i) {
        if (std::find(table.key.begin(), table.key.end(), table.columns[i].name) != table.key.end())
            parts << Shown(row[i]);
    }
    return parts.isEmpty() && !row.empty() ? Shown(row.front()) : parts.join(QLatin1String(", "));
}

} // namespace

std::optional<Value> FittedValue(const Value& value, StoreType type)
{
    if (value.IsNull())
        return value;
    if (value.IsEmpty())
        return std::nullopt;
    if (const auto* text = value.Get<QString>()) {
        const bool fits = type == StoreType::Text && !text->contains(QChar(u'\0'));
        return fits ? std::optional(value) : std::nullopt;
    }
    if (type == StoreType::Text)
        return Value(ToText(value));
    return FittedNumber(ToDouble(value), type);
}

void UnfitValues::Add(const StoreTable& table, const std::vector<Value>& row, size_t column)
{
    if (++m_count > MostNamed)
        return;
    m_listed << QStringLiteral("%1 %2, %3: %4")
                    .arg(table.name, RowShown(table, row), table.columns[column].name, Shown(row[column]));
}

QString UnfitValues::Text() const
{
    const QString listed = m_listed.join(QLatin1String("; "));
    const qint64 more = m_count - m_listed.size();
    return more > 0 ? listed + QStringLiteral("; \u2026 (+%1)").arg(more) : listed;
}

} // namespace Orvane
