// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleEditorForm.h>

namespace Orvane::Testing {

/// A form of an editor that does nothing, for tests that override what they look at.
class EmptyEditorForm : public IStyleEditorForm
{
protected:
    QString IStyleEditorForm_EditorID() const override { return QStringLiteral("Main"); }
    void IStyleEditorForm_AddNewLayer(qint32) override { }
    void IStyleEditorForm_Popup() override { }
    void IStyleEditorForm_SetLayerCode(qint32) override { }
    void IStyleEditorForm_SetLayerName(qint32, const QString&) override { }
    const std::vector<RendererStyle>& IStyleEditorForm_LoadRendererStyles() override { return m_styles; }
    const IStyleFilter* IStyleEditorForm_Filter() const override { return nullptr; }
    void IStyleEditorForm_Filter(const IStyleFilter*) override { }
    void IStyleEditorForm_UnloadWithoutApply() override { }
    void IStyleEditorForm_RefreshLayerNames(const QSet<qint32>&) override { }
    bool IStyleEditorForm_HasPendingEdits() const override { return false; }
    void IStyleEditorForm_Refresh() override { }

private:
    std::vector<RendererStyle> m_styles{{1, QStringLiteral("Shaded")}};
};

} // namespace Orvane::Testing
