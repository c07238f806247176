// SPDX-License-Identifier: MIT
#include "component/entry/MessageTable.h"

#include "component/entry/FormTexts.h"

namespace Orvane {

void MessageTable::LoadFile(const QString& path)
{
    m_catalogue = MessageCatalogue::FromFile(path);
}

QString MessageTable::Translate(const QString& text, MessageContext) const
{
    return m_catalogue.Translate(text);
}

void MessageTable::TranslateForm(QWidget& form) const
{
    TranslateFormTexts(form, [this](const QString& english) { return Translate(english); });
}

} // namespace Orvane
