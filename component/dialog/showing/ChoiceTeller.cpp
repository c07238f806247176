// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ChoiceTeller.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/HostInterface.h"
#include "component/dialog/showing/ChosenLayers.h"
#include "component/dialog/trees/LayerTrees.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/IChoiceWatch.h>

namespace Orvane {

ChoiceTeller::ChoiceTeller(LayerTrees& trees, QWidget& form) : m_trees(trees), m_form(form)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    QObject::connect(&m_soon, &QTimer::timeout, &m_form, [this] { GuardEvent(&m_form, [this] { Tell(); }); });
    const auto tellSoon = [this] { TellSoon(); };
    QObject::connect(&trees, &LayerTrees::CurrentNodeChanged, &m_soon, tellSoon);
    QObject::connect(&trees, &LayerTrees::ChosenNodesGone, &m_soon, tellSoon);
    QObject::connect(&trees, &LayerTrees::NodesRead, &m_soon, tellSoon); // groups may have other layers
    // Another editor may have told the host its choice meanwhile.
    QObject::connect(&trees, &LayerTrees::CurrentNodeClicked, &m_soon, [this] {
        m_told.reset();
        TellSoon();
    });
}

std::vector<qint32> ChoiceTeller::ReadChosen() const
{
    const BusyPointer busy;
    return ReadLayerIDs(Client(), m_trees.ChosenNodes());
}

void ChoiceTeller::Tell()
{
    if (!m_form.isVisible()) // a form that has ended may outlive the host
        return;
    auto* watch = HostInterface<IChoiceWatch>();
    if (!watch)
        return;
    const std::vector<qint32> chosen = ReadChosen();
    if (chosen == m_told)
        return;
    m_told = chosen;
    watch->LayersChosen(&m_form, chosen);
}

} // namespace Orvane
