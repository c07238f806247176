// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TracingEditor.h"

#include "hostkit/tracing/CallTrace.h"

#include <OrvaneShellLib/IStyleFilter.h>

namespace Orvane {

namespace {

class TracingFilter : public IStyleFilter
{
public:
    TracingFilter(const IStyleFilter& filter, CallTrace& trace) : m_filter(filter), m_trace(trace) { }

private:
    bool IStyleFilter_ShowsGroups() const override
    {
        return m_trace.Question("filter.ShowsGroups", [&] { return m_filter.ShowsGroups(); });
    }

    bool IStyleFilter_IsLayerShown(qint32 layerID, bool pseudo) const override
    {
        const auto ask = [&] { return m_filter.IsLayerShown(layerID, pseudo); };
        return m_trace.Question("filter.IsLayerShown", ask, layerID, pseudo);
    }

    const IStyleFilter& m_filter;
    CallTrace& m_trace;
};

TraceWord FilterWord(const IStyleFilter* filter)
{
    return {filter ? "filter" : "nothing"};
}

} // namespace

TracingEditor::TracingEditor(IStyleEditor& editor, CallTrace& trace) : m_editor(editor), m_trace(trace)
{
}

TracingEditor::~TracingEditor() = default;

void TracingEditor::IStyleEditor_StyleFilter(const IStyleFilter* filter)
{
    const auto former = std::move(m_tracedFilter); // the editor uses it until the call is made
    m_trace.Command(
        "editor.StyleFilter", [&] { m_editor.StyleFilter(Traced(filter)); }, FilterWord(filter));
}

bool TracingEditor::IStyleEditor_Visible() const
{
    return m_trace.Question("editor.Visible", [&] { return std::as_const(m_editor).Visible(); });
}

void TracingEditor::IStyleEditor_Visible(bool visible)
{
    m_trace.Command(
        "editor.Visible", [&] { m_editor.Visible(visible); }, visible);
}

void TracingEditor::IStyleEditor_RefreshGroups()
{
    m_trace.Command("editor.RefreshGroups", [&] { m_editor.RefreshGroups(); });
}

QString TracingEditor::IStyleEditorForm_EditorID() const
{
    return m_trace.Question("form.EditorID", [&] { return Form().EditorID(); });
}

void TracingEditor::IStyleEditorForm_AddNewLayer(qint32 layerID)
{
    m_trace.Command(
        "form.AddNewLayer", [&] { Form().AddNewLayer(layerID); }, layerID);
}

void TracingEditor::IStyleEditorForm_Popup()
{
    m_trace.Command("form.Popup", [&] { Form().Popup(); });
}

void TracingEditor::IStyleEditorForm_SetLayerCode(qint32 layerID)
{
    m_trace.Command(
        "form.SetLayerCode", [&] { Form().SetLayerCode(layerID); }, layerID);
}

void TracingEditor::IStyleEditorForm_SetLayerName(qint32 layerID, const QString& name)
{
    m_trace.Command(
        "form.SetLayerName", [&] { Form().SetLayerName(layerID, name); }, layerID, name);
}

const std::vector<RendererStyle>& TracingEditor::IStyleEditorForm_LoadRendererStyles()
{
    return *m_trace.Command("form.LoadRendererStyles", [&] { return &Form().LoadRendererStyles(); });
}

const IStyleFilter* TracingEditor::IStyleEditorForm_Filter() const
{
    m_trace.Question("form.Filter", [&] { return FilterWord(Form().Filter()); });
    return m_filter;
}

void TracingEditor::IStyleEditorForm_Filter(const IStyleFilter* filter)
{
    const auto former = std::move(m_tracedFilter); // the editor uses it until the call is made
    m_trace.Command(
        "form.Filter", [&] { Form().Filter(Traced(filter)); }, FilterWord(filter));
}

void TracingEditor::IStyleEditorForm_UnloadWithoutApply()
{
    m_trace.Command("form.UnloadWithoutApply", [&] { Form().UnloadWithoutApply(); });
}

void TracingEditor::IStyleEditorForm_RefreshLayerNames(const QSet<qint32>& layerIDs)
{
    m_trace.Command(
        "form.RefreshLayerNames", [&] { Form().RefreshLayerNames(layerIDs); }, qint32(layerIDs.size()));
}

bool TracingEditor::IStyleEditorForm_HasPendingEdits() const
{
    return m_trace.Question("form.HasPendingEdits", [&] { return Form().HasPendingEdits(); });
}

void TracingEditor::IStyleEditorForm_Refresh()
{
    m_trace.Command("form.Refresh", [&] { Form().Refresh(); });
}

void TracingEditor::IStyleEditorRefresh_RefreshLayers(const QSet<qint32>& layerIDs)
{
    auto* finer = dynamic_cast<IStyleEditorRefresh*>(&m_editor);
    if (!finer)
        return IStyleEditorForm_Refresh();
    m_trace.Command(
        "form.RefreshLayers", [&] { finer->RefreshLayers(layerIDs); }, qint32(layerIDs.size()));
}

IStyleEditorForm& TracingEditor::Form() const
{
    return dynamic_cast<IStyleEditorForm&>(m_editor);
}

const IStyleFilter* TracingEditor::Traced(const IStyleFilter* filter)
{
    m_filter = filter;
    m_tracedFilter = filter ? std::make_unique<TracingFilter>(*filter, m_trace) : nullptr;
    return m_tracedFilter.get();
}

} // namespace Orvane
