// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/StyleEditorWindow.h"

#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QString>

#include <memory>

namespace Orvane {

class StyleEditorRegistry;

/// The component's entry object: creates the registry of editors, loads the messages, takes the host's
/// objects.
///
/// A process may hold several. They share all there is: an editor that one created is found by the others,
/// the client of the last Initialise serves them all and must outlive them all, and the editors end with the
/// last of them. It is not destroyed from within a call that the component makes into the host.
class StyleEditorLib final : public IStyleEditorLibrary
{
public:
    /// factory: makes the editors' windows. messageFolder: where the message file lies; loading it never
    /// fails. Both are used by the first of several entry objects only.
    StyleEditorLib(const StyleEditorFactory& factory, const QString& messageFolder);
    /// Unloads every editor without applying when it is the last entry object. Never raises.
    ~StyleEditorLib() override;

private:
    IStyleEditor* IStyleEditorLibrary_GetStyleEditor(const QString& styleEditorID) const noexcept override;
    void IStyleEditorLibrary_Initialise(IStyleEditorClient* client) override;
    IStyleEditor* IStyleEditorLibrary_NewStyleEditor(const QString& styleEditorID) override;

    std::shared_ptr<StyleEditorRegistry> m_editors;
};

} // namespace Orvane
