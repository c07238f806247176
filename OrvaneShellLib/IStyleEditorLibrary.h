// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class IStyleEditor;
class IStyleEditorClient;

/// The component's entry object. The host gets it from the plug-in's factory, owns it, and closes every
/// editor by destroying it: edits that were not applied are discarded without asking. Do not destroy it
/// inside a call that the component makes to the host. Several of these objects share the host and the
/// editors; destroying the last one closes the editors.
///
/// All calls are made on the user-interface thread.
class IStyleEditorLibrary
{
public:
    virtual ~IStyleEditorLibrary() = default;
    IStyleEditorLibrary(const IStyleEditorLibrary&) = delete;
    IStyleEditorLibrary& operator=(const IStyleEditorLibrary&) = delete;

    /// Returns the editor registered under the ID, or nullptr. Owned by the component. Never raises.
    IStyleEditor* GetStyleEditor(const QString& styleEditorID) const noexcept
    {
        return IStyleEditorLibrary_GetStyleEditor(styleEditorID);
    }

    /// Sets the host's application object and gets the shell services from it. Call it before the first
    /// NewStyleEditor; a second call replaces both, for open editors too. The host owns both, and both must
    /// outlive this object. Passes on what GetShellServices raises. Without a client, every use of the host
    /// raises 91 (not initialised).
    void Initialise(IStyleEditorClient* client) { IStyleEditorLibrary_Initialise(client); }

    /// Creates a hidden editor and registers it under the ID. Owned by the component. Raises 1234 if the ID
    /// is already registered; the registered editor is then left untouched. Raises 91 (not initialised) if
    /// the program has no QApplication.
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
