// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <type_traits>
#include <variant>

namespace Orvane {

/// What a Value holds, in the order of its alternatives.
enum class ValueKind {
    Empty, ///< not set; never equals anything
    Null, ///< "various" or "not known"
    Boolean,
    Int16,
    Int32,
    Single,
    Double,
    Text,
};

/// One property value of a layer or one column value of a row: a closed variant.
///
///     Value various = Value::Null();
///     Value width = qint16(-3);
///     if (!width.IsNull()) { int pixels = -ToInt32(width); }
///
/// A copy is independent of the original; nothing here raises. Checked conversions are in ValueConversions.h.
class Value
{
public:
    /// An Empty value.
    Value() = default;
    /// A Null value.
    static Value Null()
    {
        Value value;
        value.m_data = NullTag{};
        return value;
    }

    // Implicit on purpose: a record is filled with plain C++ values.
    /// Each gives the kind of its argument.
    Value(bool value) : m_data(value) { }
    Value(qint16 value) : m_data(value) { }
    Value(qint32 value) : m_data(value) { }
    Value(float value) : m_data(value) { }
    Value(double value) : m_data(value) { }
    Value(const QString& value) : m_data(value) { }
    Value(QString&& value) : m_data(std::move(value)) { }
    /// Deleted: a pointer would silently become a boolean.
    template <typename T> Value(T*) = delete;

    /// What it holds; IsNumber is true for the four kinds of numbers.
    ValueKind Kind() const { return static_cast<ValueKind>(m_data.index()); }
    bool IsEmpty() const { return Kind() == ValueKind::Empty; }
    bool IsNull() const { return Kind() == ValueKind::Null; }
    bool IsText() const { return Kind() == ValueKind::Text; }
    bool IsBoolean() const { return Kind() == ValueKind::Boolean; }
    /// True for the two integer and the two floating kinds; a boolean is not a number.
    bool IsNumber() const { return Kind() >= ValueKind::Int16 && Kind() <= ValueKind::Double; }

    /// The stored alternative, or nullptr when a different one is stored. T: bool, qint16, qint32, float,
    /// double, QString.
    template <typename T> const T* Get() const { return std::get_if<T>(&m_data); }

    /// Same kind and same content; Empty and Null each equal themselves here. For tests and containers; use
    /// ValuesEqual to compare properties.
    bool IsIdenticalTo(const Value& other) const { return m_data == other.m_data; }

private:
    struct NullTag {
        bool operator==(const NullTag&) const { return true; }
    };

    std::variant<std::monostate, NullTag, bool, qint16, qint32, float, double, QString> m_data;
};

} // namespace Orvane
