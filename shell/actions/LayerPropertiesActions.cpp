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

namespace Orvane {

LayerPropertiesActions::LayerPropertiesActions(QWidget& window, QMenu& menu, SystemCatalogue& catalogue)
    : m_window(window), m_catalogue(catalogue)
{
    QAction* action = menu.addAction(tr("Layer &Properties..."));
    action->setObjectName(QStringLiteral("actLayerProperties"));
    action->setStatusTip(tr("Show the data of a layer, and choose their coordinate system"));
    connect(action, &QAction::triggered, this, [this] { Guard(&m_window, [this] { Ask(); }); });
    connect(&menu, &QMenu::aboutToShow, this, [this, action] {
        Guard(&m_window, [&] { action->setEnabled(m_session->Document().HasLayers()); });
    });
}

void LayerPropertiesActions::Use(MapSession& session)
{
    m_session = &session;
    m_last = 0;
}

void LayerPropertiesActions::Ask(qint32 layerID)
{
    MapDocument& document = m_session->Document();
    if (m_session->Layers().empty())
        return;
    LayerPropertiesDialog dialog(
        document, m_session->Layers(), layerID != 0 ? layerID : m_last, m_catalogue, &m_window);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
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
