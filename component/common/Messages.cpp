// SPDX-License-Identifier: MIT
#include "component/common/Messages.h"

#include "component/common/Component.h"
#include "component/common/MessageFormatter.h"
#include "component/common/MessageTable.h"

namespace Orvane {

QString TranslateMsg(const QString& text, const MessageArguments& arguments)
{
    Component& component = Component::Get();
    const QString translated = component.Messages().Translate(text, MessageContext::Any);
    return component.Formatter().FormatMessage(translated, arguments);
}

void TranslateForm(QWidget& form)
{
    Component::Get().Messages().TranslateForm(form);
}

void ReloadMessages()
{
    Component::Get().LoadMessages();
}

} // namespace Orvane
