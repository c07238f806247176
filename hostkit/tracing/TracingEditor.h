// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorRefresh.h>

#include <memory>

namespace Orvane {

class CallTrace;

/// Traces every call to one editor and passes it on; see TracingLibrary.
class TracingEditor : public IStyleEditor, public IStyleEditorForm, public IStyleEditorRefresh
{
public:
    /// Neither is owned. editor: also implements IStyleEditorForm; do not use this object after it is
    /// destroyed.
    TracingEditor(IStyleEditor& editor, CallTrace& trace);
    ~TracingEditor() override;

    /// True when this object wraps that editor.
    bool IsFor(const IStyleEditor* editor) const { return &m_editor == editor; }

protected:
    void IStyleEditor_StyleFilter(const IStyleFilter* filter) override;
    bool IStyleEditor_Visible() const override;
    void IStyleEditor_Visible(bool visible) override;
    void IStyleEditor_RefreshGroups() override;

    QString IStyleEditorForm_EditorID() const override;
    void IStyleEditorForm_AddNewLayer(qint32 layerID) override;
    void IStyleEditorForm_Popup() override;
    void IStyleEditorForm_SetLayerCode(qint32 layerID) override;
    void IStyleEditorForm_SetLayerName(qint32 layerID, const QString& name) override;
    const std::vector<RendererStyle>& IStyleEditorForm_LoadRendererStyles() override;
    /// The filter as the host set it.
    const IStyleFilter* IStyleEditorForm_Filter() const override;
    void IStyleEditorForm_Filter(const IStyleFilter* filter) override;
    void IStyleEditorForm_UnloadWithoutApply() override;
    void IStyleEditorForm_RefreshLayerNames(const QSet<qint32>& layerIDs) override;
    bool IStyleEditorForm_HasPendingEdits() const override;
    void IStyleEditorForm_Refresh() override;
    /// Calls Refresh of an editor that has no RefreshLayers.
    void IStyleEditorRefresh_RefreshLayers(const QSet<qint32>& layerIDs) override;

private:
    IStyleEditorForm& Form() const;
    const IStyleFilter* Traced(const IStyleFilter* filter);

    IStyleEditor& m_editor;
    CallTrace& m_trace;
    const IStyleFilter* m_filter = nullptr;
    std::unique_ptr<IStyleFilter> m_tracedFilter;
};

} // namespace Orvane
