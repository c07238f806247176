// SPDX-License-Identifier: MIT
#include "component/entry/FakeEditorWindow.h"

#include "component/common/Component.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

namespace Orvane::Testing {

FakeEditorWindow::FakeEditorWindow(QStringList* events) : m_events(events)
{
}

FakeEditorWindow::~FakeEditorWindow()
{
    m_events->append("delete " + EditorID());
}

void FakeEditorWindow::Unload()
{
    if (HasClient()) {
        Client().EditorClosed(this);
        Client().WriteSetting(this, "DrawStyleEditor::" + EditorID(), "state");
    }
    m_shown = false;
    emit Unloaded(EditorID());
}

void FakeEditorWindow::IStyleEditor_Visible(bool visible)
{
    if (visible == m_shown)
        return;
    m_shown = visible;
    if (visible)
        Client().ShowEditor(this);
    else
        Unload();
}

void FakeEditorWindow::IStyleEditorForm_UnloadWithoutApply()
{
    m_events->append("unload " + EditorID() + " without applying");
    modified = false;
    Unload();
}

StyleEditorFactory FakeEditors(QStringList& events)
{
    return [&events] { return std::make_unique<FakeEditorWindow>(&events); };
}

} // namespace Orvane::Testing
