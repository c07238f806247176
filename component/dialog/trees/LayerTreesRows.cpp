// SPDX-License-Identifier: MIT
// What the rows of the trees show besides the names.
#include "component/dialog/rows/LayerSamples.h"
#include "component/dialog/trees/LayerTreeGestures.h"
#include "component/dialog/trees/LayerTreeList.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/trees/NodeNameDelegate.h"

#include <QTreeView>

namespace Orvane {

void LayerTreeList::ShowSamples(LayerSamples* samples)
{
    m_delegate->ShowSamples(samples);
    m_view->viewport()->update();
}

void LayerTrees::WireSamples(LayerTreeList& list, LayerTreeGestures& gestures)
{
    gestures.OfferSamples([this] { return m_showsSamples; });
    connect(&gestures, &LayerTreeGestures::SamplesRequested, this, &LayerTrees::ShowSamples);
    connect(&list.Model(), &QAbstractItemModel::dataChanged, this, &LayerTrees::ExpireSamples);
    connect(m_samples, &LayerSamples::Changed, list.View().viewport(), QOverload<>::of(&QWidget::update));
}

void LayerTrees::ShowSamples(bool show)
{
    m_showsSamples = show;
    for (LayerTreeList* list : {m_groups, m_layers})
        list->ShowSamples(show ? m_samples : nullptr);
    ExpireSamples();
}

void LayerTrees::ExpireSamples()
{
    m_samples->Expire();
}

} // namespace Orvane
