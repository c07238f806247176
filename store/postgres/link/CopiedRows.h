// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QByteArray>
#include <QtGlobal>

#include <vector>

namespace Orvane {

/// Rows as PostgreSQL's COPY reads them: a line for each, such as "7\tMain road\t\N".
class CopiedRows
{
public:
    /// Adds a row. A boolean is written as 1 or 0.
    void Add(const std::vector<Value>& row);
    /// All rows since Clear.
    const QByteArray& Text() const { return m_text; }
    /// Forgets the rows, and keeps the memory for others.
    void Clear() { m_text.resize(0); }

private:
    void AddValue(const Value& value);
    void AddText(const QByteArray& text);

    QByteArray m_text;
};

} // namespace Orvane
