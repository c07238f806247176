// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

namespace Orvane {

class IStyleEditorClient;
class IShellServices;
class MessageFormatter;
class MessageTable;
class StyleEditorRegistry;

/// The host's application object and shell services, as handed to Initialise. Raise 91 before it.
IStyleEditorClient& Client();
IShellServices& ShellServices();

/// True after Initialise: an editor that was created before it unloads without a host.
bool HasClient();

/// What all editors of the process share: the only global of the component.
///
/// StyleEditorLib fills it when it is created and empties it when the last one is gone; the messages stay, so
/// that a text can be shown at any time.
class Component
{
public:
    /// The one object of this process.
    static Component& Get();

    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;

    /// The translations; an empty table is made on first use when none was loaded.
    MessageTable& Messages();
    /// Fills placeholders; made on first use.
    const MessageFormatter& Formatter();

    /// The folder that holds the message file, or one folder per language with one. Nothing is read yet.
    void SetMessageFolder(const QString& folder) { m_messageFolder = folder; }
    /// Replaces the table by the message file for the current locale; English when there is none.
    void LoadMessages();

    /// The host's objects; not owned. Both nullptr when no host is held.
    void SetHost(IStyleEditorClient* client, IShellServices* services);
    IStyleEditorClient* Client() const { return m_client; }
    IShellServices* ShellServices() const { return m_services; }

    /// The registry of the editors while a StyleEditorLib lives, else nullptr. Owned by those that share it.
    std::shared_ptr<StyleEditorRegistry> Registry() const { return m_registry.lock(); }
    void SetRegistry(const std::shared_ptr<StyleEditorRegistry>& registry) { m_registry = registry; }

private:
    Component();
    ~Component();

    QString m_messageFolder;
    std::unique_ptr<MessageTable> m_messages;
    std::unique_ptr<MessageFormatter> m_formatter;
    IStyleEditorClient* m_client = nullptr;
    IShellServices* m_services = nullptr;
    std::weak_ptr<StyleEditorRegistry> m_registry;
};

} // namespace Orvane
