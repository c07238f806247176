// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/StyleEditorWindow.h"

#include <QStringList>

namespace Orvane::Testing {

/// An editor window that does only what the registry needs: it shows itself through the client, unloads on
/// request and records these events.
class FakeEditorWindow : public StyleEditorWindow
{
    Q_OBJECT

public:
    /// events: "unload Main without applying" and "delete Main" are appended; outlives the window.
    explicit FakeEditorWindow(QStringList* events);
    ~FakeEditorWindow() override;

    /// Edits that an unload with a question would ask about.
    bool modified = false;

    void Unload();

private:
    void IStyleEditor_StyleFilter(const IStyleFilter* filter) override { m_filter = filter; }
    bool IStyleEditor_Visible() const override { return m_shown; }
    void IStyleEditor_Visible(bool visible) override;
    void IStyleEditor_RefreshGroups() override { }
    void IStyleEditorForm_AddNewLayer(qint32) override { }
    void IStyleEditorForm_Popup() override { }
    void IStyleEditorForm_SetLayerCode(qint32) override { }
    void IStyleEditorForm_SetLayerName(qint32, const QString&) override { }
    const std::vector<RendererStyle>& IStyleEditorForm_LoadRendererStyles() override { return m_styles; }
    const IStyleFilter* IStyleEditorForm_Filter() const override { return m_filter; }
    void IStyleEditorForm_Filter(const IStyleFilter* filter) override { m_filter = filter; }
    void IStyleEditorForm_UnloadWithoutApply() override;
    void IStyleEditorForm_RefreshLayerNames(const QSet<qint32>&) override { }
    bool IStyleEditorForm_HasPendingEdits() const override { return modified; }
    void IStyleEditorForm_Refresh() override { }
    void IStyleEditorRefresh_RefreshLayers(const QSet<qint32>&) override { }

    QStringList* m_events;
    const IStyleFilter* m_filter = nullptr;
    std::vector<RendererStyle> m_styles;
    bool m_shown = false;
};

/// Makes FakeEditorWindows that write to the events.
StyleEditorFactory FakeEditors(QStringList& events);

} // namespace Orvane::Testing
