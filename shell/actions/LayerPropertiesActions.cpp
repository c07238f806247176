// SPDX-License-Identifier: MIT
#include "shell/actions/LayerPropertiesActions.h"

#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/dialogs/LayerPropertiesDialog.h"
#include "shell/map/MapSession.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QAction>
#include <QMenu>
#include <QPointer>

namespace Orvane {

LayerPropertiesActions::LayerPropertiesActions(QWidget& window, QMenu& menu, SystemCatalogue& catalogue)
    : m_window(window), m_catalogue(catalogue)
{
    QAction* action = menu.addAction(tr("Layer &Properties..."));
    action->setObjectName(QStringLiteral("actLayerProperties"));
    action->setStatusTip(tr("Show the data of a layer, and choose their coordinate system"));
    connect(action, &QAction::triggered, this, [this] {
        Guard(&m_window, [this] { Ask(m_session->Shell().ChosenLayers()); });
    });
    connect(&menu, &QMenu::aboutToShow, this, [this, action] {
        Guard(&m_window, [&] { action->setEnabled(m_session->Document().HasLayers()); });
    });
}

void LayerPropertiesActions::Use(MapSession& session)
{
    m_session = &session;
    m_last = 0;
    session.Shell().AddLayerCommand(
        {QStringLiteral("LayerProperties"), tr("Layer Properties..."),
         [](const std::vector<qint32>&) { return QString(); },
         [this](const std::vector<qint32>& layerIDs) { Ask(layerIDs); }});
}

// chosen: the first of these is shown first; without them, the layer that was shown last.
void LayerPropertiesActions::Ask(const std::vector<qint32>& chosen)
{
    const QPointer session(m_session); // the map may be saved under another name while it asks
    MapDocument& document = m_session->Document();
    if (m_session->Layers().empty())
        return;
    LayerPropertiesDialog dialog(
        document, m_session->Layers(), chosen.empty() ? m_last : chosen.front(), m_catalogue, &m_window);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    if (!session)
        return;
    m_last = dialog.LayerID();
    const std::vector<LayerSource> changes = isAccepted ? dialog.Changes() : std::vector<LayerSource>();
    if (changes.empty())
        return;
    m_session->Shell().RecordStep([&] {
        Transaction transaction(document.Database());
        for (const LayerSource& source : changes)
            document.SetSource(source);
        transaction.Commit();
        return tr("Change Coordinate System of Data");
    });
    emit SystemsChosen();
}

} // namespace Orvane
