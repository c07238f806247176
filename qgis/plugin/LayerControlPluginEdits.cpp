// SPDX-License-Identifier: MIT
// Edits that were not applied yet, when the project or the editor ends.
#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/windows/EditorDock.h"
#include "qgis/plugin/EditorRows.h"
#include "qgis/plugin/LayerControlPlugin.h"
#include "qgis/plugin/ProjectSession.h"
#include "qgis/plugin/SchemeCommands.h"
#include "qgis/project/SavedTree.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <qgsproject.h>

namespace Orvane {

namespace {

constexpr int CanvasDelay = 50; // milliseconds

// A moment after the tree has changed, the canvas follows, and QGIS marks the project as changed. That must
// not be after it was saved.
void LetCanvasFollow()
{
    QEventLoop loop;
    QTimer::singleShot(CanvasDelay, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

// QGIS tells nobody that a project is about to be closed, but it asks the user if the project has changed.
void LayerControlPlugin::WatchPendingEdits()
{
    if (!m_session)
        return;
    m_session->Guard([this] {
        QgsProject& project = *QgsProject::instance();
        if (!project.isDirty() && m_session->Client().HasPendingEdits())
            project.setDirty(true);
        if (m_isEditorOld && m_dock->isVisible() && !m_session->Client().HasPendingEdits())
            RenewEditor();
    });
}

// A project is saved, perhaps because it is about to be closed. An editor that ends asks the user.
void LayerControlPlugin::AskAboutEdits(QDomDocument& file)
{
    IStyleEditor* editor = Editor();
    if (!editor || !m_session->Client().HasPendingEdits())
        return;
    const bool isInSight = m_dock->isVisible();
    const EditorRows rows(m_dock->widget());
    const QPointer<LayerControlPlugin> self(this);
    editor->Visible(false);
    LetCanvasFollow();
    SavedTree::WriteAgain(file, *QgsProject::instance());
    if (!self || !m_session || !isInSight)
        return;
    ShowEditor();
    rows.Restore(m_dock->widget());
}

// An editor reads the renderer styles once.
void LayerControlPlugin::RenewEditor()
{
    m_isEditorOld = false;
    auto* editor = dynamic_cast<IStyleEditorForm*>(Editor());
    if (!editor)
        return;
    const QPointer<QWidget> focused = QApplication::focusWidget();
    const EditorRows rows(m_dock->widget());
    editor->UnloadWithoutApply();
    ShowEditor();
    rows.Restore(m_dock->widget());
    if (focused && focused->isVisible())
        focused->setFocus();
}

} // namespace Orvane
