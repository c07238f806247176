// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/StyleEditorWindow.h"

#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/IStyleEditorTexts.h>
#include <OrvaneShellLib/PluginContract.h>

#include <QString>

#include <memory>

namespace Orvane {

class StyleEditorRegistry;

/// The component's entry object: creates the registry of editors, loads the messages and stores the host's
/// objects.
///
/// A process may have several entry objects, which share everything. An editor that one created is found by
/// the others. The client of the last Initialise serves them all and must outlive them all. The editors are
/// unloaded with the last entry object. Do not destroy one during a call from the component to the host.
class StyleEditorLib final : public IStyleEditorLibrary, public IStyleEditorTexts
{
public:
    /// factory: creates the editors' windows. messageFolder: the folder of the message file; loading never
    /// fails. Only the first of several entry objects uses them. host: the contract of the host that will
    /// call Initialise.
    StyleEditorLib(
        const StyleEditorFactory& factory, const QString& messageFolder,
        const ContractVersion& host = CurrentContract);
    /// The last entry object unloads every editor without applying. Never raises.
    ~StyleEditorLib() override;

private:
    IStyleEditor* IStyleEditorLibrary_GetStyleEditor(const QString& styleEditorID) const noexcept override;
    void IStyleEditorLibrary_Initialise(IStyleEditorClient* client) override;
    IStyleEditor* IStyleEditorLibrary_NewStyleEditor(const QString& styleEditorID) override;
    void IStyleEditorTexts_AddTexts(const QString& language, QIODevice& document) override;
    void IStyleEditorTexts_AddTextFolder(const QString& folder) override;

    ContractVersion m_host;
    std::shared_ptr<StyleEditorRegistry> m_editors;
};

} // namespace Orvane
