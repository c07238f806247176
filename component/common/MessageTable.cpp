// SPDX-License-Identifier: MIT
#include "component/common/MessageTable.h"

#include "component/common/FormTexts.h"

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
