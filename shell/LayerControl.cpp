// SPDX-License-Identifier: MIT
#include "shell/LayerControl.h"

#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/tracing/TracingLibrary.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

namespace Orvane {

namespace {

constexpr auto EditorID = "Main";

} // namespace

LayerControl::LayerControl(CallTrace* trace) : m_trace(trace)
{
}

LayerControl::~LayerControl() = default;

void LayerControl::SetClient(IStyleEditorClient* client)
{
    m_client = client;
    m_initialisedWith = nullptr;
}

void LayerControl::Show()
{
    Load();
    IStyleEditor* editor = Editor();
    if (!editor)
        editor = NewEditor();
    if (!editor->Visible())
        editor->Visible(true);
}

bool LayerControl::Close()
{
    if (IStyleEditor* editor = Editor())
        editor->Visible(false);
    return !IsShown();
}

bool LayerControl::IsShown() const
{
    const IStyleEditor* editor = Editor();
    return editor && editor->Visible();
}

IStyleEditor* LayerControl::Editor() const
{
    return m_library ? m_library->GetStyleEditor(QLatin1String(EditorID)) : nullptr;
}

IStyleEditor* LayerControl::NewEditor()
{
    IStyleEditor* editor = m_library->NewStyleEditor(QLatin1String(EditorID));
    editor->StyleFilter(&m_filter);
    return editor;
}

void LayerControl::Load()
{
    if (!m_plugin) {
        m_plugin = std::make_unique<StyleEditorPlugin>();
        if (m_trace)
            m_tracing = std::make_unique<TracingLibrary>(m_plugin->Library(), *m_trace);
        m_library = m_tracing ? static_cast<IStyleEditorLibrary*>(m_tracing.get()) : &m_plugin->Library();
    }
    if (m_initialisedWith == m_client)
        return;
    m_library->Initialise(m_client);
    m_initialisedWith = m_client;
}

} // namespace Orvane
