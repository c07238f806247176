// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IStyleEditorLibrary.h>
#include <orvane/OrvaneShellLib/IStyleEditorTexts.h>

#include <QCoreApplication>

#include <memory>
#include <vector>

namespace Orvane {

class CallTrace;
class TracingEditor;

/// Traces every call that the host makes to the component: to the library, as "library.Member(...)", and to
/// its editors, as "editor.Member(...)" and "form.Member(...)". Also traces every call that the component
/// makes to its filter, as "filter.Member(...)".
///
/// The editors that it returns implement IStyleEditor, IStyleEditorForm and IStyleEditorRefresh, and are
/// owned by this object. They are not widgets: take the form from IStyleEditorClient::ShowEditor. Do not use
/// an editor after this object is destroyed. Destroy the wrapped library after this object.
class TracingLibrary : public IStyleEditorLibrary, public IStyleEditorTexts
{
    Q_DECLARE_TR_FUNCTIONS(TracingLibrary)

public:
    /// Neither is owned; both outlive this object.
    TracingLibrary(IStyleEditorLibrary& library, CallTrace& trace);
    ~TracingLibrary() override;

protected:
    IStyleEditor* IStyleEditorLibrary_GetStyleEditor(const QString& styleEditorID) const noexcept override;
    /// client: passed on as it is; pass a TracingClient to trace its calls too.
    void IStyleEditorLibrary_Initialise(IStyleEditorClient* client) override;
    IStyleEditor* IStyleEditorLibrary_NewStyleEditor(const QString& styleEditorID) override;
    /// Both raise PluginFailure if the wrapped library has no IStyleEditorTexts.
    void IStyleEditorTexts_AddTexts(const QString& language, QIODevice& document) override;
    void IStyleEditorTexts_AddTextFolder(const QString& folder) override;

private:
    IStyleEditorTexts& Texts() const;
    IStyleEditor* TracedEditor(IStyleEditor* editor) const;

    IStyleEditorLibrary& m_library;
    CallTrace& m_trace;
    mutable std::vector<std::unique_ptr<TracingEditor>> m_editors; // created when first returned
};

} // namespace Orvane
