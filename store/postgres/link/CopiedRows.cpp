// SPDX-License-Identifier: MIT
#include "store/postgres/link/CopiedRows.h"

#include "store/postgres/link/FloatText.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

void CopiedRows::Add(const std::vector<Value>& row)
{
    for (size_t column = 0; column < row.size(); ++column) {
        if (column > 0)
            m_text += '\t';
        AddValue(row[column]);
    }
    m_text += '\n';
}

void CopiedRows::AddValue(const Value& value)
{
    if (value.IsNull())
        m_text += "\\N";
    else if (const auto* text = value.Get<QString>())
        AddText(text->toUtf8());
    else if (value.Kind() == ValueKind::Single || value.Kind() == ValueKind::Double)
        m_text += FloatText(ToDouble(value));
    else
        m_text += QByteArray::number(ToInt32(value));
}

void CopiedRows::AddText(const QByteArray& text)
{
    for (const char letter : text) {
        switch (letter) {
        case '\\':
            m_text += "\\\\";
            break;
        case '\t':
            m_text += "\\t";
            break;
        case '\n':
            m_text += "\\n";
            break;
        case '\r':
            m_text += "\\r";
            break;
        default:
            m_text += letter;
        }
    }
}

} // namespace Orvane
