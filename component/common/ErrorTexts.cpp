// SPDX-License-Identifier: MIT
#include "component/common/ErrorTexts.h"

#include "component/common/Messages.h"

namespace Orvane {

QString TranslatedDescription(const QString& description)
{
    return TranslateMsg(description);
}

void RaiseTranslated(const RunTimeError& error)
{
    const QString translated = TranslatedDescription(error.Description());
    if (translated != error.Description())
        throw RunTimeError(error.Number(), translated, error.Source());
}

} // namespace Orvane
