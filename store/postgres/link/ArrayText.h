// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangeCoding.h"

#include <QByteArray>

namespace Orvane {

/// An array as PostgreSQL reads it from a parameter, such as {1,NULL,"Main road"}: the values of one column
/// of many rows.
class ArrayText
{
public:
    /// Adds a value. A whole number also stands for a boolean.
    void Append(const StoredValue& value);
    /// How long the text is so far, in bytes.
    qsizetype Size() const { return m_text.size(); }
    QByteArray Text() const { return m_text + '}'; }

private:
    void AppendQuoted(const char* text, size_t size);

    QByteArray m_text = "{";
};

} // namespace Orvane
