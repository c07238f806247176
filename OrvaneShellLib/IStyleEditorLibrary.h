// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class IStyleEditor;
class IStyleEditorClient;

/// The component's entry object. The host gets it from the plug-in's factory, owns it, and ends every editor
/// by destroying it: edits that were not applied are dropped without a question. It is not destroyed from
/// within a call that the component makes into the host. Several of them share host and editors; the last one
/// destroyed ends the editors.
///
/// All calls are made on the user-interface thread.
class IStyleEditorLibrary
{
public:
    virtual ~IStyleEditorLibrary() = default;
    IStyleEditorLibrary(const IStyleEditorLibrary&) = delete;
    IStyleEditorLibrary& operator=(const IStyleEditorLibrary&) = delete;

    /// The editor registered under the ID, or nullptr. Owned by the component. Never raises.
    IStyleEditor* GetStyleEditor(const QString& styleEditorID) const noexcept
    {
        return IStyleEditorLibrary_GetStyleEditor(styleEditorID);
    }

    /// Takes the host's application object and asks it for its shell services. Before the first
    /// NewStyleEditor; a second call replaces both, for open editors too. Both stay the host's and outlive
    /// this object. Passes on what GetShellServices raises. Without a client every use of the host raises 91.
    void Initialise(IStyleEditorClient* client) { IStyleEditorLibrary_Initialise(client); }

    /// Creates a hidden editor and registers it under the ID. Owned by the component. Raises 1234 when the ID
    /// is registered already; the registered editor is then untouched.
    IStyleEditor* NewStyleEditor(const QString& styleEditorID)
    {
        return IStyleEditorLibrary_NewStyleEditor(styleEditorID);
    }

protected:
    IStyleEditorLibrary() = default;

private:
    virtual IStyleEditor* IStyleEditorLibrary_GetStyleEditor(const QString& styleEditorID) const noexcept = 0;
    virtual void IStyleEditorLibrary_Initialise(IStyleEditorClient* client) = 0;
    virtual IStyleEditor* IStyleEditorLibrary_NewStyleEditor(const QString& styleEditorID) = 0;
};

} // namespace Orvane
