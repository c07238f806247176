// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/RawLink.h"
#include "store/postgres/link/QuotedName.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

namespace Orvane::Testing {

/// Functions and operators in a schema that fit what others send better than the server's own ones do. Each
/// leaves a mark when it runs: with the role that ran it, or, where nothing can be written, as the session's
/// setting "outside.mark". Uses the schema "outside" until this object is destroyed.
class Traps
{
public:
    /// link: of the role that lays the traps; it outlives this object.
    explicit Traps(RawLink& link) : m_link(link)
    {
        m_link.Run("CREATE SCHEMA outside;"
                   "CREATE TABLE outside.marks (trap text, victim text DEFAULT current_user);"
                   "GRANT USAGE ON SCHEMA outside TO PUBLIC; GRANT INSERT ON outside.marks TO PUBLIC");
    }
    ~Traps() { m_link.Run("DROP SCHEMA outside CASCADE"); }
    Traps(const Traps&) = delete;
    Traps& operator=(const Traps&) = delete;

    /// types: of the arguments. result: an expression of the type that the function returns.
    void AddFunction(
        const QString& schema, const QByteArray& name, const QByteArray& types, const QByteArray& type,
        const QByteArray& result)
    {
        m_link.Run(
            "CREATE FUNCTION " + QuotedName(schema) + '.' + name + '(' + types + ") RETURNS " + type
            + " LANGUAGE plpgsql AS $$ BEGIN INSERT INTO outside.marks VALUES ('" + name + "'); RETURN "
            + result + "; EXCEPTION WHEN read_only_sql_transaction THEN PERFORM set_config('outside.mark', '"
            + name + "', false); RETURN " + result + "; END $$");
    }
    /// name: of its function. The operator gives the expression.
    void AddOperator(
        const QString& schema, const QByteArray& symbol, const QByteArray& name, const QByteArray& left,
        const QByteArray& right, const QByteArray& type, const QByteArray& result)
    {
        AddFunction(schema, name, left + ", " + right, type, result);
        m_link.Run(
            "CREATE OPERATOR " + QuotedName(schema) + '.' + symbol + " (FUNCTION = " + QuotedName(schema)
            + '.' + name + ", LEFTARG = " + left + ", RIGHTARG = " + right + ')');
    }
    /// Traps for everything whose exact types the server itself has no function or operator for, as far as
    /// questions about a map might use it.
    void Lay(const QString& schema)
    {
        AddFunction(schema, "starts_with", "name, text", "boolean", "false");
        AddFunction(schema, "array_position", "smallint[], smallint", "integer", "1");
        AddFunction(schema, "has_database_privilege", "name, text", "boolean", "true");
        AddOperator(schema, "=", "same_texts", "text[]", "text[]", "boolean", "true");
        AddOperator(schema, "=", "same_number", "oid", "integer", "boolean", "true");
        AddOperator(schema, "||", "joined_name", "name", "text", "text", "$1::text");
        AddOperator(schema, "||", "joined_number", "text", "oid", "text", "$1");
    }

    /// Which traps caught somebody, and whom.
    std::vector<std::string> Marks()
    {
        return m_link.Rows("SELECT DISTINCT trap, victim FROM outside.marks ORDER BY 1, 2");
    }

private:
    RawLink& m_link;
};

} // namespace Orvane::Testing
