// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerValue.h"

#include "store/StoreTexts.h"
#include "store/shared/StoreErrors.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <charconv>
#include <cmath>

namespace Orvane {

namespace {

constexpr double LargestWhole = 1e15; // up to here every whole number is exact, and has a short text

// A whole number without a point or an exponent, so that columns of whole numbers take it.
ServerValue RealText(double number)
{
    if (std::isnan(number))
        return std::nullopt;
    if (std::abs(number) < LargestWhole && number == std::floor(number))
        return QByteArray::number(qint64(number));
    char digits[40];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return QByteArray(digits, int(end - digits));
}

ServerValue TextValue(const QString& text, const StoreErrors& errors)
{
    if (text.contains(QChar(0)))
        throw errors.Error(ErrorNumber::TypeMismatch, StoreTexts::ValueRefused, QStringLiteral("U+0000"));
    return text.toUtf8();
}

} // namespace

ServerValue ToServerValue(const Value& value, const StoreErrors& errors)
{
    switch (value.Kind()) {
    case ValueKind::Null:
        return std::nullopt;
    case ValueKind::Boolean:
        return *value.Get<bool>() ? QByteArrayLiteral("1") : QByteArrayLiteral("0");
    case ValueKind::Int16:
    case ValueKind::Int32:
        return QByteArray::number(ToInt32(value));
    case ValueKind::Single:
    case ValueKind::Double:
        return RealText(ToDouble(value));
    case ValueKind::Text:
        return TextValue(*value.Get<QString>(), errors);
    case ValueKind::Empty:
        break;
    }
    throw errors.Error(ErrorNumber::TypeMismatch, StoreTexts::NothingToStore);
}

ServerValues ToServerValues(const std::vector<Value>& values, const StoreErrors& errors)
{
    ServerValues result;
    result.reserve(values.size());
    for (const Value& value : values)
        result.push_back(ToServerValue(value, errors));
    return result;
}

} // namespace Orvane
