// SPDX-License-Identifier: MIT
#include "component/dialog/window/PendingChangesPrompt.h"

#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "messages/NameInText.h"

#include <utility>

namespace Orvane {

namespace {

} // namespace

PendingChangesPrompt::PendingChangesPrompt(std::function<void()> apply, std::function<void()> cancel)
    : m_apply(std::move(apply)), m_cancel(std::move(cancel))
{
}

void PendingChangesPrompt::Ask(QWidget* owner, bool isGroup, const QString& nodeText) const
{
    const QString kind = isGroup ? TranslateMsg("group") : TranslateMsg("layer");
    const QString question
        = TranslateMsg("Do you wish to apply the changes to the '^2' ^1?", kind, NameInQuestion(nodeText));
    const BoxAnswer answer = ShowMessageBox(owner, question, BoxStyle::YesNo);
    ActOn(answer == BoxAnswer::Yes ? Answer::Yes : Answer::No);
}

void PendingChangesPrompt::ActOn(Answer answer) const
{
    switch (answer) {
    case Answer::Yes:
        m_apply();
        break;
    case Answer::No:
        break;
    case Answer::Cancel:
        m_cancel();
        break;
    }
}

} // namespace Orvane
