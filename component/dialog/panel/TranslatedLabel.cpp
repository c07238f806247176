// SPDX-License-Identifier: MIT
#include "component/dialog/panel/TranslatedLabel.h"

#include "component/controls/IUITranslator.h"

#include <QLabel>

namespace Orvane {

TranslatedLabel::TranslatedLabel(QLabel& label, const IUITranslator& translator)
    : m_label(label), m_translator(translator)
{
}

void TranslatedLabel::Set(const Value& value)
{
    m_label.setText(m_translator.toString(value));
    m_value = value;
    if (m_changed)
        m_changed();
}

Value TranslatedLabel::Read() const
{
    const QString caption = m_label.text();
    return caption.isEmpty() ? Value::Null() : m_translator.FromString(caption);
}

void TranslatedLabel::Retranslate()
{
    if (!m_value.IsEmpty())
        Set(m_value);
}

} // namespace Orvane
