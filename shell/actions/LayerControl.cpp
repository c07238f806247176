// SPDX-License-Identifier: MIT
#include "shell/actions/LayerControl.h"

#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/tracing/TracingLibrary.h"
#include "shell/actions/PseudoFilter.h"
#include "shell/map/MapSession.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QApplication>
#include <QPointer>

#include <algorithm>

namespace Orvane {

namespace {

constexpr auto MainEditorID = "Main";

} // namespace

LayerControl::LayerControl(CallTrace* trace) : m_trace(trace)
{
}

LayerControl::~LayerControl() = default;

void LayerControl::Use(MapSession& session)
{
    IStyleEditorClient* client = &session.Client();
    m_client = client;
    m_initialisedWith = nullptr;
    m_entries.clear();
}

void LayerControl::Show()
{
    if (!IsShown(QLatin1String(MainEditorID)))
        Show(QLatin1String(MainEditorID), std::make_shared<PseudoFilter>());
}

void LayerControl::Show(const QString& editorID, std::shared_ptr<const IStyleFilter> filter)
{
    Load();
    const auto known = std::find_if(
        m_entries.begin(), m_entries.end(), [&](const Entry& entry) { return entry.editorID == editorID; });
    Entry& entry = known == m_entries.end() ? m_entries.emplace_back() : *known;
    const std::shared_ptr<const IStyleFilter> before = std::exchange(entry.filter, std::move(filter));
    entry.editorID = editorID;
    IStyleEditor* editor = Editor(editorID);
    if (!editor)
        editor = NewEditor(entry);
    else if (auto* form = dynamic_cast<IStyleEditorForm*>(editor))
        form->Filter(entry.filter.get());
    if (!editor->Visible())
        editor->Visible(true);
}

bool LayerControl::Close()
{
    const std::vector<Entry> shown = Shown();
    return std::all_of(
        shown.begin(), shown.end(), [this](const Entry& entry) { return Close(entry.editorID); });
}

bool LayerControl::Close(const QString& editorID)
{
    if (IStyleEditor* editor = Editor(editorID))
        editor->Visible(false);
    return !IsShown(editorID);
}

bool LayerControl::IsShown() const
{
    return !Shown().empty();
}

bool LayerControl::IsShown(const QString& editorID) const
{
    const IStyleEditor* editor = Editor(editorID);
    return editor && editor->Visible();
}

bool LayerControl::WithEditorsClosed(const std::function<void()>& act)
{
    return Reopening(Shown(), act);
}

bool LayerControl::WithAnotherMap(const std::function<void()>& act)
{
    std::vector<Entry> shown = Shown();
    std::erase_if(shown, [](const Entry& entry) { return entry.editorID != QLatin1String(MainEditorID); });
    return Reopening(shown, act);
}

bool LayerControl::Reopening(const std::vector<Entry>& entries, const std::function<void()>& act)
{
    const QPointer<QWidget> active = QApplication::activeWindow();
    if (!Close())
        return false;
    std::exception_ptr failure;
    try {
        act();
    } catch (...) {
        failure = std::current_exception();
    }
    for (const Entry& entry : entries)
        Show(entry.editorID, entry.filter);
    if (active && active->isVisible() && !entries.empty())
        active->activateWindow();
    if (failure)
        std::rethrow_exception(failure);
    return true;
}

IStyleEditor* LayerControl::Editor(const QString& editorID) const
{
    return m_library ? m_library->GetStyleEditor(editorID) : nullptr;
}

IStyleEditor* LayerControl::NewEditor(const Entry& entry)
{
    IStyleEditor* editor = m_library->NewStyleEditor(entry.editorID);
    editor->StyleFilter(entry.filter.get());
    return editor;
}

std::vector<LayerControl::Entry> LayerControl::Shown() const
{
    std::vector<Entry> shown;
    std::copy_if(m_entries.begin(), m_entries.end(), std::back_inserter(shown), [this](const Entry& entry) {
        return IsShown(entry.editorID);
    });
    return shown;
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
