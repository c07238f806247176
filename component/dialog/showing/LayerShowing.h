// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"
#include "component/dialog/showing/ImageClicks.h"
#include "component/dialog/showing/ModeStore.h"
#include "component/dialog/showing/ShownBar.h"
#include "component/dialog/showing/ShownLayers.h"
#include "component/model/LayerTreeEntries.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <utility>
#include <vector>

class QAction;
class QMenu;
class QTreeView;

namespace Orvane {

class LayerTrees;
class NodeSelection;

/// Shows and hides the layers of nodes at once, without Apply: by the nodes' menu, and by clicks on the
/// nodes' images. "Show Only These" hides all other layers, and keeps with the map what is needed to bring
/// them back; bars above the lists say so meanwhile. The menu also offers Delete. Each change is one
/// transaction with one redraw.
///
/// A layer that was hidden is shown in the mode Normal; one in the mode Backdrop counts as shown.
class LayerShowing : public QObject
{
    Q_OBJECT

public:
    /// groups, layers: the views of the trees. None is owned; all outlive this object.
    LayerShowing(LayerTrees& trees, QTreeView& groups, QTreeView& layers, QObject* parent = nullptr);

    /// Whether the host allows quick modes; without it, nothing here changes them. At first false.
    void SetAllowed(bool allowed);
    /// isPending: returns whether the dialog holds edits. If so, a click on the image of another node does
    /// not choose that node, so that nobody is asked about them.
    void SetPendingEdits(std::function<bool()> isPending) { m_isPending = std::move(isPending); }

    /// Reads again whether only some layers are shown. Call it after layers were changed elsewhere. Raises
    /// what the host and its database raise.
    void ReadShown();
    /// The same after these layers were changed and no others; reads no others where it can.
    void FollowShown(const QSet<qint32>& layerIDs);
    /// Shows the bars in the current language.
    void Retranslate();

signals:
    /// The quick modes of these layers are stored; the lists show them already.
    void ModesChanged(const QSet<qint32>& layerIDs);
    /// The nodes' menu is being filled and has the entries that show and hide: receivers add those that stand
    /// before Delete and the host's commands.
    void ModesAdded(QMenu* menu);

private:
    QTreeView& View() const;
    void FillMenu(QMenu& menu);
    void AddModes(QMenu& menu);
    void AddDelete(QMenu& menu);
    QAction* Add(QMenu& menu, const QString& text, const QString& whyNot, void (LayerShowing::*act)());
    QString WhyNotShow() const;
    QString WhyNotHide() const;
    QString WhyNotShowOnly() const;
    QString WhyNotShowAll() const;
    QString WhyNotDelete() const;
    bool AnyChosenIs(bool (*isWanted)(qint16 quickMode)) const;
    void ShowChosen() { SetHidden(false); }
    void HideChosen() { SetHidden(true); }
    void DeleteChosen();
    void SetHidden(bool hidden);
    void SetHidden(const NodeSelection& nodes, bool hidden);
    bool KeepsChoice(const NodeReference& node) const;
    void OnImageClicked(const NodeReference& node);
    void ShowOnlyChosen();
    void ShowAllAgain();
    void Store(const std::function<ModeStore::Change()>& plan);
    void Tell(const std::vector<LayerMode>& changed);
    ShownBar& AddBar(QTreeView& view);

    LayerTrees& m_trees;
    QTreeView& m_groups;
    QTreeView& m_layers;
    ImageClicks m_groupClicks;
    ImageClicks m_layerClicks;
    std::function<bool()> m_isPending;
    ShownBar& m_groupBar; ///< owned by the form, as the next
    ShownBar& m_layerBar;
    ShownLayers m_shown;
    bool m_allowed = false;
};

} // namespace Orvane
