// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <memory>
#include <vector>

namespace Orvane {

class CallTrace;
class TracingEditor;

/// Writes every call that the host makes to the component: of the library, as "library.Member(...)", of its
/// editors, as "editor.Member(...)" and "form.Member(...)", and every question that the component asks the
/// filter it was given, as "filter.Member(...)".
///
/// The editors that it hands out implement IStyleEditor and IStyleEditorForm, and stay this object's. They
/// are no widgets: take the form from IStyleEditorClient::ShowEditor. No editor may be used once this object
/// is gone; the library behind is destroyed after it.
class TracingLibrary : public IStyleEditorLibrary
{
public:
    /// Neither is owned; both outlive this object.
    TracingLibrary(IStyleEditorLibrary& library, CallTrace& trace);
    ~TracingLibrary() override;

protected:
    IStyleEditor* IStyleEditorLibrary_GetStyleEditor(const QString& styleEditorID) const noexcept override;
    /// client: handed on as it is; hand over a TracingClient to see its calls too.
    void IStyleEditorLibrary_Initialise(IStyleEditorClient* client) override;
    IStyleEditor* IStyleEditorLibrary_NewStyleEditor(const QString& styleEditorID) override;

private:
    IStyleEditor* TracedEditor(IStyleEditor* editor) const;

    IStyleEditorLibrary& m_library;
    CallTrace& m_trace;
    mutable std::vector<std::unique_ptr<TracingEditor>> m_editors; // made when first handed out
};

} // namespace Orvane
