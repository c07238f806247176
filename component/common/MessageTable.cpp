// SPDX-License-Identifier: MIT
#include "component/common/MessageTable.h"

#include "component/common/FormTexts.h"

namespace Orvane {

void MessageTable::LoadFile(const QString& path)
{
    Load({MessageCatalogue::FromFile(path)});
}

QString MessageTable::Translate(const QString& text, MessageContext) const
{
    for (const MessageCatalogue& catalogue : m_catalogues) {
        if (const auto translation = catalogue.Find(text))
            return *translation;
    }
    return text;
}

void MessageTable::TranslateForm(QWidget& form) const
{
    TranslateFormTexts(form, [this](const QString& english) { return Translate(english); });
}

} // namespace Orvane
