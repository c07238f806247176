// SPDX-License-Identifier: MIT
#pragma once

#include "shell/PseudoFilter.h"

#include <memory>

namespace Orvane {

class CallTrace;
class IStyleEditor;
class IStyleEditorClient;
class IStyleEditorLibrary;
class StyleEditorPlugin;
class TracingLibrary;

/// The layer control of the shell: loads the component when it is first asked for, and shows its one editor,
/// which has the ID "Main".
///
/// Raises what loading the component raises, and what the component passes on.
class LayerControl
{
public:
    /// trace: not owned; nullptr for none.
    explicit LayerControl(CallTrace* trace = nullptr);
    /// Ends the editor without applying, and unloads the component. The client must still be alive.
    ~LayerControl();
    LayerControl(const LayerControl&) = delete;
    LayerControl& operator=(const LayerControl&) = delete;

    /// The client that the next editor works with; not owned. Only while no editor is open.
    void SetClient(IStyleEditorClient* client);

    /// Opens the editor; does nothing when it is shown.
    void Show();
    /// Closes the editor, which asks about edits that were not applied. False when it stays open.
    bool Close();
    bool IsShown() const;

private:
    IStyleEditor* Editor() const;
    IStyleEditor* NewEditor();
    void Load();

    const PseudoFilter m_filter;
    CallTrace* m_trace;
    IStyleEditorClient* m_client = nullptr;
    IStyleEditorClient* m_initialisedWith = nullptr;
    std::unique_ptr<StyleEditorPlugin> m_plugin;
    std::unique_ptr<TracingLibrary> m_tracing;
    IStyleEditorLibrary* m_library = nullptr; // one of the two above
};

} // namespace Orvane
