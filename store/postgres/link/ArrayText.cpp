// SPDX-License-Identifier: MIT
#include "store/postgres/link/ArrayText.h"

#include "store/postgres/link/FloatText.h"

namespace Orvane {

void ArrayText::Append(const StoredValue& value)
{
    if (m_text.size() > 1)
        m_text += ',';
    if (const auto* text = std::get_if<std::string_view>(&value))
        AppendQuoted(text->data(), text->size());
    else if (const auto* blob = std::get_if<Blob>(&value))
        AppendQuoted(blob->bytes.constData(), size_t(blob->bytes.size()));
    else if (const auto* number = std::get_if<qint64>(&value))
        m_text += QByteArray::number(*number);
    else if (const auto* real = std::get_if<double>(&value))
        m_text += FloatText(*real);
    else
        m_text += "NULL";
}

void ArrayText::AppendQuoted(const char* text, size_t size)
{
    m_text += '"';
    for (size_t place = 0; place < size; ++place) {
        if (text[place] == '"' || text[place] == '\\')
            m_text += '\\';
        m_text += text[place];
    }
    m_text += '"';
}

} // namespace Orvane
