// SPDX-License-Identifier: MIT
#include "component/dialog/trees/ColumnErrorTexts.h"

#include "component/common/Messages.h"

namespace Orvane {

QString TextOf(const ColumnError& error)
{
    const QString sentence
        = TranslateMsg(QString::fromLatin1(error.Sentence()), error.ColumnName(), error.ValueText());
    return error.RowName().isEmpty() ? sentence : TranslateMsg("^1: ^2", error.RowName(), sentence);
}

} // namespace Orvane
