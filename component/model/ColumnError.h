// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Value.h>

#include <QString>

namespace Orvane {

/// A value of a row that cannot be read, shown or written. The description names all of it, in English:
/// "Roads: LineThickness 1639 is too large." The parts are for a translation.
class ColumnError : public RunTimeError
{
public:
    /// cause: gives the number and the source. rowName: the layer's or group's name; may be empty.
    ColumnError(
        const RunTimeError& cause, const QString& rowName, const QString& columnName, const Value& value);

    const QString& RowName() const { return m_rowName; }
    const QString& ColumnName() const { return m_columnName; }
    /// The value as text; empty for Null.
    const QString& ValueText() const { return m_valueText; }
    /// What is wrong, in English, with "^1" for the column and "^2" for the value.
    const char* Sentence() const { return m_sentence; }

private:
    struct Parts;
    ColumnError(const RunTimeError& cause, Parts parts);

    QString m_rowName;
    QString m_columnName;
    QString m_valueText;
    const char* m_sentence;
};

} // namespace Orvane
