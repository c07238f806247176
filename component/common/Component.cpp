// SPDX-License-Identifier: MIT
#include "component/common/Component.h"

#include "component/common/AddedTexts.h"
#include "component/common/MessageChoice.h"
#include "component/common/MessageFormatter.h"
#include "component/common/MessageTable.h"
#include "component/common/Messages.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QLocale>

namespace Orvane {

namespace {

template <typename Object> Object& Held(Object* object)
{
    if (!object)
        throw RunTimeError(
            ErrorNumber::NotInitialised, TranslateMsg("The layer control has not been initialised."));
    return *object;
}

} // namespace

IStyleEditorClient& Client()
{
    return Held(Component::Get().Client());
}

IShellServices& ShellServices()
{
    return Held(Component::Get().ShellServices());
}

bool HasClient()
{
    return Component::Get().Client() != nullptr;
}

Component& Component::Get()
{
    // Never destroyed: a host's global objects may use the component until the process ends.
    static auto* component = new Component;
    return *component;
}

MessageTable& Component::Messages()
{
    if (!m_messages)
        m_messages = std::make_unique<MessageTable>();
    return *m_messages;
}

const MessageFormatter& Component::Formatter()
{
    if (!m_formatter)
        m_formatter = std::make_unique<MessageFormatter>();
    return *m_formatter;
}

AddedTexts& Component::Added()
{
    if (!m_added)
        m_added = std::make_unique<AddedTexts>();
    return *m_added;
}

void Component::LoadMessages()
{
    Messages().Load(CataloguesFor(m_messageFolder, Added(), QLocale().uiLanguages()));
}

void Component::SetHost(IStyleEditorClient* client, IShellServices* services)
{
    m_client = client;
    m_services = services;
}

} // namespace Orvane
