// SPDX-License-Identifier: MIT
#include "shell/actions/RenderingActions.h"

#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/dialogs/RenderingDialog.h"
#include "shell/map/MapSession.h"

#include <QAction>
#include <QMenu>

namespace Orvane {

RenderingActions::RenderingActions(QWidget& window, QMenu& menu) : m_window(window)
{
    QAction* action = menu.addAction(tr("Layer &Rendering..."));
    action->setObjectName(QStringLiteral("actLayerRendering"));
    action->setStatusTip(tr("Choose the attributes that label and colour the features of a layer"));
    connect(action, &QAction::triggered, this, [this] {
        Guard(&m_window, [this] { Ask(m_session->Shell().ChosenLayers()); });
    });
    connect(&menu, &QMenu::aboutToShow, this, [this, action] {
        Guard(&m_window, [&] { action->setEnabled(m_session->Document().HasLayers()); });
    });
}

void RenderingActions::Use(MapSession& session)
{
    m_session = &session;
    session.Shell().AddLayerCommand(
        {QStringLiteral("LayerRendering"), tr("Layer Rendering..."),
         [](const std::vector<qint32>&) { return QString(); },
         [this](const std::vector<qint32>& layerIDs) { Ask(layerIDs); }});
}

// chosen: the first of these is shown first; may be empty.
void RenderingActions::Ask(const std::vector<qint32>& chosen)
{
    MapSession& session = *m_session;
    if (session.Layers().empty())
        return;
    RenderingDialog dialog(session.Document(), session.Layers(), &m_window);
    if (!chosen.empty())
        dialog.Choose(chosen.front());
    if (dialog.exec() != QDialog::Accepted)
        return;
    QSet<qint32> changed;
    for (const auto& [layerID, rendering] : dialog.Changes()) {
        session.Document().Renderings().Set(layerID, rendering);
        changed.insert(layerID);
    }
    session.DrawAgain(changed);
}

} // namespace Orvane
