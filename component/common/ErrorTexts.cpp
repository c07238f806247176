// SPDX-License-Identifier: MIT
#include "component/common/ErrorTexts.h"

#include "component/common/Messages.h"

namespace Orvane {

QString TranslatedDescription(const QString& description)
{
    const qsizetype column = description.endsWith(u')') ? description.lastIndexOf(QStringLiteral(" (")) : -1;
    if (column <= 0)
        return TranslateMsg(description);
    const QString whole = TranslateMsg(description);
    return whole != description ? whole : TranslateMsg(description.left(column)) + description.mid(column);
}

void RaiseTranslated(const RunTimeError& error)
{
    const QString translated = TranslatedDescription(error.Description());
    if (translated != error.Description())
        throw RunTimeError(error.Number(), translated, error.Source());
}

} // namespace Orvane
