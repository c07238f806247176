// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/PluginContract.h>

#include <QSet>
#include <QString>

#include <memory>
#include <optional>

namespace Orvane {

class AddedTexts;
class IStyleEditorClient;
class IShellServices;
class MessageFormatter;
class MessageTable;
class StyleEditorRegistry;

/// The host's application object and shell services, as passed to Initialise. Both raise 91 before that call.
IStyleEditorClient& Client();
IShellServices& ShellServices();

/// True after Initialise. An editor that was created before that call unloads without a host.
bool HasClient();

/// What all editors of the process share. This is the only global of the component.
///
/// StyleEditorLib fills it when it is created. It is emptied when the last StyleEditorLib is destroyed. The
/// messages stay, so that a text can be shown at any time.
class Component
{
public:
    /// The one object of this process.
    static Component& Get();

    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;

    /// The translations. An empty table is created on first use if none was loaded.
    MessageTable& Messages();
    /// Fills placeholders; created on first use.
    const MessageFormatter& Formatter();

    /// The folder that holds the message file, or one subfolder per language with a message file. Nothing is
    /// read yet.
    void SetMessageFolder(const QString& folder) { m_messageFolder = folder; }
    /// What hosts have added to the message file; used by the next LoadMessages.
    AddedTexts& Added();
    /// Replaces the table by the texts for the current locale: added ones and the message file. Texts stay
    /// English if there are none.
    void LoadMessages();

    /// The host's objects; not owned. Both are nullptr if there is no host.
    void SetHost(IStyleEditorClient* client, IShellServices* services);
    IStyleEditorClient* Client() const { return m_client; }
    IShellServices* ShellServices() const { return m_services; }

    /// The contract that the host was built with; this component's own until a host has told another.
    ContractVersion HostContract() const { return m_hostContract; }
    void SetHostContract(const ContractVersion& contract) { m_hostContract = contract; }

    /// The settings without a tick when settings were pasted last, by their keys; nothing before the first
    /// time.
    std::optional<QSet<QString>>& SettingsNotToPaste() { return m_settingsNotToPaste; }

    /// The registry of the editors while a StyleEditorLib exists, else nullptr. The StyleEditorLib objects
    /// own it.
    std::shared_ptr<StyleEditorRegistry> Registry() const { return m_registry.lock(); }
    void SetRegistry(const std::shared_ptr<StyleEditorRegistry>& registry) { m_registry = registry; }

private:
    Component() = default;

    QString m_messageFolder;
    std::unique_ptr<AddedTexts> m_added;
    std::unique_ptr<MessageTable> m_messages;
    std::unique_ptr<MessageFormatter> m_formatter;
    IStyleEditorClient* m_client = nullptr;
    IShellServices* m_services = nullptr;
    ContractVersion m_hostContract = CurrentContract;
    std::weak_ptr<StyleEditorRegistry> m_registry;
    std::optional<QSet<QString>> m_settingsNotToPaste;
};

} // namespace Orvane
