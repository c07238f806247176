// SPDX-License-Identifier: MIT
#include "hostkit/windows/EditorWindows.h"

#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorRefresh.h>

#include <QApplication>
#include <QWindow>

#include <algorithm>
#include <exception>

namespace Orvane {

namespace {

void RefreshAll(QWidget& form)
{
    if (auto* editor = dynamic_cast<IStyleEditorForm*>(&form))
        editor->Refresh();
}

} // namespace

QWidget* EditorWindows::FrontWindow() const
{
    if (QWidget* active = QApplication::activeWindow())
        return active;
    const auto last = std::find_if(m_forms.rbegin(), m_forms.rend(), [](const QPointer<QWidget>& form) {
        return form && form->isVisible();
    });
    return last == m_forms.rend() ? MainWindow() : (*last)->window();
}

void EditorWindows::Show(QWidget* form)
{
    Forget(form);
    std::erase(m_forms, nullptr); // destroyed by the host without a word
    m_forms.emplace_back(form);
    if (m_mainWindow && m_mainWindow != form && form->isWindow()) {
        form->winId(); // creates the window handle
        form->windowHandle()->setTransientParent(m_mainWindow->windowHandle());
    }
    form->show();
    form->raise();
    if (!form->testAttribute(Qt::WA_ShowWithoutActivating))
        form->activateWindow();
}

bool EditorWindows::Adopt(QWidget* form)
{
    if (std::find(m_forms.begin(), m_forms.end(), form) != m_forms.end())
        return false;
    m_forms.emplace_back(form);
    return true;
}

bool EditorWindows::Forget(QWidget* form)
{
    return std::erase(m_forms, form) > 0;
}

std::vector<QWidget*> EditorWindows::Shown() const
{
    std::vector<QWidget*> shown;
    for (const QPointer<QWidget>& form : m_forms) {
        if (form)
            shown.push_back(form);
    }
    return shown;
}

bool EditorWindows::HavePendingEdits() const
{
    const std::vector<QWidget*> forms = Shown();
    return std::any_of(forms.begin(), forms.end(), [](QWidget* form) {
        const auto* editor = dynamic_cast<IStyleEditorForm*>(form);
        return editor && editor->HasPendingEdits();
    });
}

void EditorWindows::RefreshEditors() const
{
    RefreshEach(RefreshAll);
}

void EditorWindows::RefreshEditors(const QSet<qint32>& layerIDs) const
{
    RefreshEach([&layerIDs](QWidget& form) {
        if (auto* editor = dynamic_cast<IStyleEditorRefresh*>(&form))
            editor->RefreshLayers(layerIDs);
        else
            RefreshAll(form);
    });
}

void EditorWindows::RefreshEach(const std::function<void(QWidget& form)>& refresh) const
{
    std::exception_ptr firstError;
    for (const QPointer<QWidget>& form : std::vector(m_forms)) {
        try {
            if (form)
                refresh(*form);
        } catch (...) {
            if (!firstError)
                firstError = std::current_exception();
        }
    }
    if (firstError)
        std::rethrow_exception(firstError);
}

} // namespace Orvane
