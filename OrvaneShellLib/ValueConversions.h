// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/RunTimeError.h>
#include <orvane/OrvaneShellLib/Value.h>

#include <QLocale>
#include <QString>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace Orvane {

/// The nearest whole number; a half goes to the even neighbour (2.5 gives 2, 3.5 gives 4).
inline double RoundHalfToEven(double number)
{
    const double lower = std::floor(number);
    const double fraction = number - lower;
    if (fraction != 0.5)
        return fraction < 0.5 ? lower : lower + 1;
    return std::fmod(lower, 2.0) == 0.0 ? lower : lower + 1;
}

/// The number in a text, ignoring leading and trailing blanks: "." as decimal separator, no grouping,
/// exponents allowed. Returns nothing for any other text, for infinities and for NaN.
inline std::optional<double> NumberInText(const QString& text)
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    const double number = locale.toDouble(text.trimmed(), &ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    return number;
}

namespace Detail {

[[noreturn]] inline void RaiseOverflow()
{
    throw RunTimeError(ErrorNumber::Overflow, QStringLiteral("Overflow"));
}

[[noreturn]] inline void RaiseTypeMismatch()
{
    throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
}

template <typename Integer> Integer RoundedTo(double number)
{
    const double rounded = RoundHalfToEven(number);
    if (!(rounded >= double(std::numeric_limits<Integer>::min())
          && rounded <= double(std::numeric_limits<Integer>::max())))
        RaiseOverflow();
    return static_cast<Integer>(rounded);
}

// In fixed notation DBL_MAX takes 309 digits, the smallest double takes about 1,080.
template <typename Number> QString PlainDecimal(Number number)
{
    if (number == 0)
        return QStringLiteral("0");
    char digits[1200];
    const auto end = [&] {
        if constexpr (std::is_integral_v<Number>)
            return std::to_chars(digits, digits + sizeof digits, number).ptr;
        else
            return std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed).ptr;
    }();
    return QString::fromLatin1(digits, end - digits);
}

} // namespace Detail

/// A number as a double, a boolean as 1 or 0, a text that holds a number as that number. Raises 13 (type
/// mismatch) for Empty, Null and any other text.
inline double ToDouble(const Value& value)
{
    if (const auto* number = value.Get<double>())
        return *number;
    if (const auto* number = value.Get<qint32>())
        return *number;
    if (const auto* number = value.Get<qint16>())
        return *number;
    if (const auto* number = value.Get<float>())
        return double(*number);
    if (const auto* flag = value.Get<bool>())
        return *flag ? 1 : 0;
    if (const auto* text = value.Get<QString>()) {
        if (const auto number = NumberInText(*text))
            return *number;
    }
    Detail::RaiseTypeMismatch();
}

/// As ToDouble, rounded half to even. Raises 13 as ToDouble does, and 6 (overflow) outside the 16-bit range.
inline qint16 ToInt16(const Value& value)
{
    return Detail::RoundedTo<qint16>(ToDouble(value));
}

/// As ToDouble, rounded half to even. Raises 13 as ToDouble does, and 6 (overflow) outside the 32-bit range.
inline qint32 ToInt32(const Value& value)
{
    if (const auto* number = value.Get<qint32>())
        return *number;
    return Detail::RoundedTo<qint32>(ToDouble(value));
}

/// As ToDouble, but returns nothing where that raises: for readers that go on without the value.
inline std::optional<double> NumberIn(const Value& value)
{
    try {
        return ToDouble(value);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// As ToInt32, but returns nothing where that raises.
inline std::optional<qint32> Int32In(const Value& value)
{
    try {
        return ToInt32(value);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// As ToDouble, in single precision. Raises 13 as ToDouble does, and 6 (overflow) outside its range.
inline float ToSingle(const Value& value)
{
    const double number = ToDouble(value);
    if (std::abs(number) > double(std::numeric_limits<float>::max()))
        Detail::RaiseOverflow();
    return float(number);
}

/// A boolean as it is; a number, or a text that holds one, is true unless it is 0. Raises 13 as ToDouble
/// does.
inline bool ToBoolean(const Value& value)
{
    if (const auto* flag = value.Get<bool>())
        return *flag;
    return ToDouble(value) != 0;
}

/// A text as it is; a number in the shortest plain decimal form (no exponent, no grouping, "." as decimal
/// separator); a boolean as "True" or "False". Raises 13 for Empty and Null.
inline QString ToText(const Value& value)
{
    switch (value.Kind()) {
    case ValueKind::Text:
        return *value.Get<QString>();
    case ValueKind::Boolean:
        return *value.Get<bool>() ? QStringLiteral("True") : QStringLiteral("False");
    case ValueKind::Int16:
        return Detail::PlainDecimal(int(*value.Get<qint16>()));
    case ValueKind::Int32:
        return Detail::PlainDecimal(*value.Get<qint32>());
    case ValueKind::Single:
        return Detail::PlainDecimal(*value.Get<float>());
    case ValueKind::Double:
        return Detail::PlainDecimal(*value.Get<double>());
    case ValueKind::Empty:
    case ValueKind::Null:
        break;
    }
    Detail::RaiseTypeMismatch();
}

/// As ToText, but returns an empty text for Null; for columns that may be empty. Raises 13 for Empty.
inline QString ToTextOrNone(const Value& value)
{
    return value.IsNull() ? QString() : ToText(value);
}

/// Equality of two property values: numbers compare numerically across their four kinds, texts with texts,
/// booleans with booleans. Empty and Null equal nothing, not even themselves; callers handle Null first.
/// Never raises.
inline bool ValuesEqual(const Value& left, const Value& right)
{
    if (left.IsNumber() && right.IsNumber())
        return ToDouble(left) == ToDouble(right);
    if (left.IsEmpty() || left.IsNull())
        return false;
    return left.IsIdenticalTo(right);
}

} // namespace Orvane
