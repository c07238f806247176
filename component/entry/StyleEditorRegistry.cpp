// SPDX-License-Identifier: MIT
#include "component/entry/StyleEditorRegistry.h"

#include "component/common/Messages.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QEvent>

#include <algorithm>

namespace Orvane {

StyleEditorRegistry::StyleEditorRegistry(StyleEditorFactory factory) : m_factory(std::move(factory))
{
}

StyleEditorRegistry::~StyleEditorRegistry()
{
    const auto editors = std::exchange(m_editors, {});
    for (const Entry& entry : editors)
        delete entry.window;
    const auto unloaded = std::exchange(m_unloaded, {});
    for (const auto& window : unloaded)
        delete window;
}

StyleEditorWindow* StyleEditorRegistry::Find(const QString& editorID) const noexcept
{
    const auto found = std::find_if(
        m_editors.begin(), m_editors.end(), [&](const Entry& entry) { return entry.editorID == editorID; });
    return found == m_editors.end() ? nullptr : found->window;
}

StyleEditorWindow& StyleEditorRegistry::Create(const QString& editorID)
{
    if (Find(editorID))
        throw RunTimeError(
            ErrorNumber::DuplicateEditorID, TranslateMsg("Style Editor with that ID already exists."));
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) // Qt would end the program
        throw RunTimeError(
            ErrorNumber::NotInitialised,
            TranslateMsg("The program must make a QApplication before it makes a layer control."));
    auto window = m_factory();
    window->SetEditorID(editorID);
    Register(editorID, window.get());
    return *window.release();
}

QStringList StyleEditorRegistry::EditorIDs() const
{
    QStringList editorIDs;
    for (const Entry& entry : m_editors)
        editorIDs.append(entry.editorID);
    return editorIDs;
}

void StyleEditorRegistry::Register(const QString& editorID, StyleEditorWindow* window)
{
    connect(window, &StyleEditorWindow::Unloaded, this, [this, window] { OnUnloaded(window); });
    connect(window, &QObject::destroyed, this, [this](QObject* destroyed) { Forget(destroyed); });
    m_editors.push_back({editorID, window});
}

bool StyleEditorRegistry::Forget(const QObject* window)
{
    // Compared as addresses: a window that is being destroyed is now only a QObject.
    return std::erase_if(
               m_editors,
               [window](const Entry& entry) { return static_cast<const QObject*>(entry.window) == window; })
        > 0;
}

void StyleEditorRegistry::OnUnloaded(StyleEditorWindow* window)
{
    if (!Forget(window))
        return;
    std::erase_if(m_unloaded, [](const auto& earlier) { return earlier.isNull(); });
    m_unloaded.emplace_back(window);
    window->deleteLater();
}

void StyleEditorRegistry::UnloadAll() noexcept
{
    // Uses a list made before: otherwise a host that creates editors meanwhile could keep this loop running.
    for (const QString& editorID : EditorIDs()) {
        if (StyleEditorWindow* window = Find(editorID))
            UnloadOne(window);
    }
}

void StyleEditorRegistry::ShowLanguage()
{
    for (const QString& editorID : EditorIDs()) {
        QEvent change(QEvent::LanguageChange);
        if (StyleEditorWindow* window = Find(editorID))
            QCoreApplication::sendEvent(window, &change);
    }
}

void StyleEditorRegistry::UnloadOne(StyleEditorWindow* window) noexcept
{
    const QPointer<StyleEditorWindow> alive = window;
    try {
        window->UnloadWithoutApply();
    } catch (...) { // the host is closing: the error cannot be shown
    }
    if (alive && Forget(window))
        delete window; // its unload was interrupted
}

} // namespace Orvane
