// SPDX-License-Identifier: MIT
#include "component/dialog/window/PendingChangesPrompt.h"

#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "messages/NameInText.h"

#include <QLocale>

namespace Orvane {

namespace {

PendingChangesAnswer AnswerTo(const QString& question, QWidget* owner)
{
    const BoxAnswer answer = ShowMessageBox(owner, question, BoxStyle::YesNo);
    return answer == BoxAnswer::Yes ? PendingChangesAnswer::Yes : PendingChangesAnswer::No;
}

} // namespace

PendingChangesAnswer AskToApply(QWidget* owner, bool isGroup, const QString& nodeText)
{
    const QString kind = isGroup ? TranslateMsg("group") : TranslateMsg("layer");
    return AnswerTo(
        TranslateMsg("Do you wish to apply the changes to the '^2' ^1?", kind, NameInQuestion(nodeText)),
        owner);
}

PendingChangesAnswer AskToApplyToMany(QWidget* owner, qsizetype layers)
{
    const QString question = layers == 1
        ? TranslateMsg("Do you wish to apply the changes to the selected layer?")
        : TranslateMsg(
            "Do you wish to apply the changes to the ^1 selected layers?", QLocale().toString(layers));
    return AnswerTo(question, owner);
}

} // namespace Orvane
