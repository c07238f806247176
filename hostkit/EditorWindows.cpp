// SPDX-License-Identifier: MIT
#include "hostkit/EditorWindows.h"

#include <QWindow>

#include <algorithm>

namespace Orvane {

void EditorWindows::Show(QWidget* form)
{
    Forget(form);
    m_forms.emplace_back(form);
    if (m_mainWindow && m_mainWindow != form) {
        form->winId(); // makes the window handle
        form->windowHandle()->setTransientParent(m_mainWindow->windowHandle());
    }
    form->show();
    form->raise();
    form->activateWindow();
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

} // namespace Orvane
