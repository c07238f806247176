// SPDX-License-Identifier: MIT
#include "component/dialog/window/PendingChangesPrompt.h"

#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "messages/NameInText.h"

namespace Orvane {

PendingChangesAnswer AskToApply(QWidget* owner, bool isGroup, const QString& nodeText)
{
    const QString kind = isGroup ? TranslateMsg("group") : TranslateMsg("layer");
    const QString question
        = TranslateMsg("Do you wish to apply the changes to the '^2' ^1?", kind, NameInQuestion(nodeText));
    const BoxAnswer answer = ShowMessageBox(owner, question, BoxStyle::YesNo);
    return answer == BoxAnswer::Yes ? PendingChangesAnswer::Yes : PendingChangesAnswer::No;
}

} // namespace Orvane
