// SPDX-License-Identifier: MIT
#include "component/entry/StyleEditorLib.h"

#include "component/common/AddedTexts.h"
#include "component/common/Component.h"
#include "component/entry/StyleEditorRegistry.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

namespace Orvane {

StyleEditorLib::StyleEditorLib(
    const StyleEditorFactory& factory, const QString& messageFolder, const ContractVersion& host)
    : m_host(host)
{
    Component& component = Component::Get();
    m_editors = component.Registry();
    if (m_editors)
        return;
    m_editors = std::make_shared<StyleEditorRegistry>(factory);
    component.SetRegistry(m_editors);
    component.SetMessageFolder(messageFolder);
    component.LoadMessages();
}

StyleEditorLib::~StyleEditorLib()
{
    Component& component = Component::Get();
    // Unloaded while this object can still answer the host's look-ups.
    if (m_editors.use_count() == 1)
        m_editors->UnloadAll();
    m_editors.reset();
    if (component.Registry())
        return;
    component.SetHost(nullptr, nullptr);
    component.SetHostContract(CurrentContract);
    component.SettingsNotToPaste().reset();
    component.Added().Clear();
}

IStyleEditor* StyleEditorLib::IStyleEditorLibrary_GetStyleEditor(const QString& styleEditorID) const noexcept
{
    return m_editors->Find(styleEditorID);
}

void StyleEditorLib::IStyleEditorLibrary_Initialise(IStyleEditorClient* client)
{
    Component& component = Component::Get();
    component.SetHost(client, nullptr); // if the next line raises, the former host is removed
    component.SetHostContract(m_host);
    component.SetHost(client, client ? client->GetShellServices() : nullptr);
}

IStyleEditor* StyleEditorLib::IStyleEditorLibrary_NewStyleEditor(const QString& styleEditorID)
{
    return &m_editors->Create(styleEditorID);
}

void StyleEditorLib::IStyleEditorTexts_AddTexts(const QString& language, QIODevice& document)
{
    Component::Get().Added().Add(language, document);
    Component::Get().LoadMessages();
    m_editors->ShowLanguage();
}

void StyleEditorLib::IStyleEditorTexts_AddTextFolder(const QString& folder)
{
    Component::Get().Added().AddFolder(folder);
    Component::Get().LoadMessages();
    m_editors->ShowLanguage();
}

} // namespace Orvane
