// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/SqliteStatement.h"

#include "store/StoreTexts.h"
#include "store/shared/IntegerValue.h"
#include "store/sqlite/engine/SqliteConnection.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <sqlite3.h>

namespace Orvane {

namespace {

sqlite3_stmt* Prepared(SqliteConnection& connection, const QByteArray& sql)
{
    connection.RequireUsable();
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    const int result = sqlite3_prepare_v3(
        connection.Handle(), sql.constData(), int(sql.size() + 1), SQLITE_PREPARE_PERSISTENT, &statement,
        &rest);
    if (result != SQLITE_OK)
        connection.Raise(result);
    if (!statement || !QByteArray(rest).trimmed().isEmpty()) {
        sqlite3_finalize(statement);
        throw connection.Errors().Failure(StoreTexts::NotOneStatement);
    }
    return statement;
}

} // namespace

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

SqliteStatement::SqliteStatement(SqliteConnection& connection, const QString& sql)
    : m_connection(connection), m_statement(Prepared(connection, sql.toUtf8()))
{
    ReadColumns();
}

void SqliteStatement::ReadColumns()
{
    m_columns.Clear();
    for (int i = 0; i < ColumnCount(); ++i) {
        const char* name = sqlite3_column_name(m_statement.get(), i);
        m_columns.Add(name ? name : "");
    }
}

bool SqliteStatement::IsReadOnly() const
{
    return sqlite3_stmt_readonly(m_statement.get()) != 0;
}

void SqliteStatement::Bind(int number, const Value& value)
{
    sqlite3_stmt* statement = m_statement.get();
    int result = SQLITE_OK;
    if (value.IsEmpty())
        throw m_connection.Errors().Error(ErrorNumber::TypeMismatch, StoreTexts::NothingToStore);
    if (value.IsNull()) {
        result = sqlite3_bind_null(statement, number);
    } else if (const auto* text = value.Get<QString>()) {
        const QByteArray utf8 = text->toUtf8();
        result = sqlite3_bind_text64(
            statement, number, utf8.constData(), quint64(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
    } else if (value.Kind() == ValueKind::Single || value.Kind() == ValueKind::Double) {
        result = sqlite3_bind_double(statement, number, ToDouble(value));
    } else {
        result = sqlite3_bind_int(statement, number, ToInt32(value));
    }
    if (result != SQLITE_OK)
        m_connection.Raise(result);
}

void SqliteStatement::Bind(int number, qint32 value)
{
    const int result = sqlite3_bind_int(m_statement.get(), number, value);
    if (result != SQLITE_OK)
        m_connection.Raise(result);
}

void SqliteStatement::Bind(int number, const StoredValue& value)
{
    sqlite3_stmt* statement = m_statement.get();
    int result = SQLITE_OK;
    if (const auto* whole = std::get_if<qint64>(&value)) {
        result = sqlite3_bind_int64(statement, number, *whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
        result = sqlite3_bind_double(statement, number, *real);
    } else if (const auto* text = std::get_if<std::string_view>(&value)) {
        result = sqlite3_bind_text64(
            statement, number, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    } else if (const auto* blob = std::get_if<Blob>(&value)) {
        const QByteArray& bytes = blob->bytes;
        result = sqlite3_bind_blob64(
            statement, number, bytes.constData(), quint64(bytes.size()), SQLITE_TRANSIENT);
    } else {
        result = sqlite3_bind_null(statement, number);
    }
    if (result != SQLITE_OK)
        m_connection.Raise(result);
}

void SqliteStatement::BindAll(const std::vector<Value>& values)
{
    if (sqlite3_bind_parameter_count(m_statement.get()) != int(values.size()))
        throw m_connection.Errors().Failure(StoreTexts::WrongParameterCount);
    int number = 0;
    for (const Value& value : values)
        Bind(++number, value);
}

bool SqliteStatement::Step()
{
    const int result = TryStep();
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    try {
        m_connection.Raise(result);
    } catch (...) {
        Reset();
        throw;
    }
}

int SqliteStatement::TryStep()
{
    m_connection.RequireUsable();
    return sqlite3_step(m_statement.get());
}

void SqliteStatement::Reset() noexcept
{
    sqlite3_reset(m_statement.get());
}

void SqliteStatement::ResetAndUnbind() noexcept
{
    Reset();
    sqlite3_clear_bindings(m_statement.get());
}

int SqliteStatement::FindColumn(std::string_view name)
{
    // If a host adds a column, "*" stands for more columns.
    if (sqlite3_column_count(m_statement.get()) != m_columns.Count())
        ReadColumns();
    return m_columns.Find(name);
}

int SqliteStatement::ColumnCount() const
{
    return sqlite3_column_count(m_statement.get());
}

Value SqliteStatement::Column(int position) const
{
    sqlite3_stmt* statement = m_statement.get();
    sqlite3_value* value = sqlite3_column_value(statement, position); // each look-up of a column takes time
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return IntegerValue(sqlite3_value_int64(value), m_columns.IsColour(position));
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_NULL:
        return Value::Null();
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, position));
        if (!text && sqlite3_errcode(m_connection.Handle()) == SQLITE_NOMEM)
            m_connection.Raise(SQLITE_NOMEM); // an empty text would look like the stored one
        return QString::fromUtf8(text, sqlite3_column_bytes(statement, position));
    }
    }
}

Value SqliteStatement::ExactColumn(int position) const
{
    if (sqlite3_column_type(m_statement.get(), position) == SQLITE_BLOB)
        return {};
    Value value = Column(position);
    const auto* text = value.Get<QString>();
    // What is not UTF-8 is read as this character.
    if (!text || !text->contains(QChar(QChar::ReplacementCharacter)))
        return value;
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(m_statement.get(), position));
    const int size = sqlite3_column_bytes(m_statement.get(), position);
    return text->toUtf8() == QByteArray::fromRawData(bytes, size) ? value : Value();
}

} // namespace Orvane
