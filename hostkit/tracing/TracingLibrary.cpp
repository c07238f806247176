// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TracingLibrary.h"

#include "hostkit/tracing/CallTrace.h"
#include "hostkit/tracing/TracingEditor.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <algorithm>

namespace Orvane {

TracingLibrary::TracingLibrary(IStyleEditorLibrary& library, CallTrace& trace)
    : m_library(library), m_trace(trace)
{
}

TracingLibrary::~TracingLibrary() = default;

IStyleEditor* TracingLibrary::IStyleEditorLibrary_GetStyleEditor(const QString& styleEditorID) const noexcept
{
    IStyleEditor* editor = nullptr;
    const auto ask = [&] {
        editor = m_library.GetStyleEditor(styleEditorID);
        return TraceWord{editor ? "editor" : "nothing"};
    };
    m_trace.Question("library.GetStyleEditor", ask, styleEditorID);
    return TracedEditor(editor);
}

void TracingLibrary::IStyleEditorLibrary_Initialise(IStyleEditorClient* client)
{
    m_trace.Command(
        "library.Initialise", [&] { m_library.Initialise(client); }, TraceWord{"client"});
}

IStyleEditor* TracingLibrary::IStyleEditorLibrary_NewStyleEditor(const QString& styleEditorID)
{
    const auto create = [&] { return m_library.NewStyleEditor(styleEditorID); };
    IStyleEditor* editor = m_trace.Command("library.NewStyleEditor", create, styleEditorID);
    // A new editor may have the same address as a destroyed one.
    std::erase_if(m_editors, [editor](const auto& traced) { return traced->IsFor(editor); });
    return TracedEditor(editor);
}

void TracingLibrary::IStyleEditorTexts_AddTexts(const QString& language, QIODevice& document)
{
    m_trace.Command(
        "library.AddTexts", [&] { Texts().AddTexts(language, document); }, language);
}

void TracingLibrary::IStyleEditorTexts_AddTextFolder(const QString& folder)
{
    m_trace.Command(
        "library.AddTextFolder", [&] { Texts().AddTextFolder(folder); }, folder);
}

// A component of an earlier contract takes none.
IStyleEditorTexts& TracingLibrary::Texts() const
{
    auto* texts = dynamic_cast<IStyleEditorTexts*>(&m_library);
    if (!texts)
        throw RunTimeError(
            ErrorNumber::PluginFailure, tr("The style editor component takes no further texts."),
            QStringLiteral("TracingLibrary"));
    return *texts;
}

IStyleEditor* TracingLibrary::TracedEditor(IStyleEditor* editor) const
{
    if (!editor)
        return nullptr;
    const auto known = std::find_if(
        m_editors.begin(), m_editors.end(), [editor](const auto& traced) { return traced->IsFor(editor); });
    if (known != m_editors.end())
        return known->get();
    return m_editors.emplace_back(std::make_unique<TracingEditor>(*editor, m_trace)).get();
}

} // namespace Orvane
