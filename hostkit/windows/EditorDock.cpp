// SPDX-License-Identifier: MIT
#include "hostkit/windows/EditorDock.h"

#include <QIcon>
#include <QShowEvent>
#include <QTimer>

namespace Orvane {

EditorDock::EditorDock(const QString& editorID, QWidget* parent) : QDockWidget(parent), m_editorID(editorID)
{
    setObjectName(QStringLiteral("EditorDock.") + editorID);
    hide();
}

EditorDock::~EditorDock() = default;

void EditorDock::ShowEditor(QWidget* form)
{
    if (m_form != form) {
        EditorClosed(m_form);
        m_form = form;
        setWidget(form);
        setWindowTitle(form->windowTitle());
        setWindowIcon(form->windowIcon());
        connect(form, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
        connect(form, &QWidget::windowIconChanged, this, &QWidget::setWindowIcon);
    }
    form->show();
    show();
    raise();
    if (!form->testAttribute(Qt::WA_ShowWithoutActivating)) {
        activateWindow();
        form->setFocus();
    }
}

void EditorDock::EditorClosed(const QWidget* form)
{
    if (!form || m_form != form)
        return;
    disconnect(m_form, nullptr, this, nullptr);
    hide();
    m_form = nullptr;
    setWidget(nullptr);
}

void EditorDock::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    // The host may show the editor, and with it this dock, only when the event has ended.
    if (!event->spontaneous() && !m_form)
        QTimer::singleShot(0, this, &EditorDock::AskForEditor);
}

void EditorDock::AskForEditor()
{
    if (!m_form && isVisible())
        emit EditorWanted(m_editorID);
}

} // namespace Orvane
