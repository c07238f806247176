// SPDX-License-Identifier: MIT
#include "component/dialog/showing/LayerShowing.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/FirstError.h"
#include "component/common/Messages.h"
#include "component/dialog/showing/ChosenLayers.h"
#include "component/dialog/showing/HostCommands.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/trees/NodeIndexes.h"
#include "component/dialog/trees/NodeMenu.h"
#include "component/dialog/trees/NodeSelection.h"
#include "component/model/LayerCursors.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QMenu>
#include <QPointer>
#include <QTreeView>

#include <algorithm>

namespace Orvane {

namespace {

// Those of the layers that are not yet as wanted, with the mode that they get.
std::vector<LayerMode> ModesToStore(const std::vector<LayerMode>& stored, bool hidden)
{
    const qint16 wanted = hidden ? QuickMode::Hidden : QuickMode::Normal;
    std::vector<LayerMode> modes;
    modes.reserve(stored.size());
    for (const LayerMode& mode : stored) {
        if ((mode.quickMode == QuickMode::Hidden) != hidden)
            modes.push_back({mode.layerID, wanted});
    }
    return modes;
}

QString CannotKeepText()
{
    return TranslateMsg("This map cannot keep which layers were hidden.");
}

QSet<qint32> LayersOf(const std::vector<LayerMode>& modes)
{
    QSet<qint32> layerIDs;
    layerIDs.reserve(int(modes.size()));
    for (const LayerMode& mode : modes)
        layerIDs.insert(mode.layerID);
    return layerIDs;
}

} // namespace

LayerShowing::LayerShowing(LayerTrees& trees, QTreeView& groups, QTreeView& layers, QObject* parent)
    : QObject(parent), m_trees(trees), m_groups(groups), m_layers(layers),
      m_groupClicks(
          groups, [this](const NodeReference& node) { return KeepsChoice(node); }, this),
      m_layerClicks(
          layers, [this](const NodeReference& node) { return KeepsChoice(node); }, this),
      m_groupBar(AddBar(groups)), m_layerBar(AddBar(layers))
{
    connect(&m_groupClicks, &ImageClicks::Clicked, this, &LayerShowing::OnImageClicked);
    connect(&m_layerClicks, &ImageClicks::Clicked, this, &LayerShowing::OnImageClicked);
    // Not guarded: the menu's opening is.
    connect(&trees, &LayerTrees::MenuOpening, this, [this](QMenu* menu) { FillMenu(*menu); });
}

void LayerShowing::SetAllowed(bool allowed)
{
    m_allowed = allowed;
    m_groupClicks.SetAllowed(allowed);
    m_layerClicks.SetAllowed(allowed);
}

QTreeView& LayerShowing::View() const
{
    return m_trees.ShownList() == LayerTrees::List::Groups ? m_groups : m_layers;
}

void LayerShowing::FillMenu(QMenu& menu)
{
    if (m_allowed)
        AddModes(menu);
    emit ModesAdded(&menu);
    AddDelete(menu);
    const auto readChosen = [this] { return ReadLayerIDs(Client(), m_trees.ChosenNodes()); };
    AddHostCommands(menu, readChosen, this, View());
}

QAction*
LayerShowing::Add(QMenu& menu, const QString& text, const QString& whyNot, void (LayerShowing::*act)())
{
    return AddNodeEntry(menu, {text, whyNot, [this, act] { (this->*act)(); }}, this, &View());
}

void LayerShowing::AddModes(QMenu& menu)
{
    menu.addSeparator();
    Add(menu, TranslateMsg("Show"), WhyNotShow(), &LayerShowing::ShowChosen);
    Add(menu, TranslateMsg("Hide"), WhyNotHide(), &LayerShowing::HideChosen);
    Add(menu, TranslateMsg("Show Only These"), WhyNotShowOnly(), &LayerShowing::ShowOnlyChosen);
    Add(menu, TranslateMsg("Show All Again"), WhyNotShowAll(), &LayerShowing::ShowAllAgain);
}

void LayerShowing::AddDelete(QMenu& menu)
{
    menu.addSeparator();
    QAction* action = Add(menu, TranslateMsg("Delete"), WhyNotDelete(), &LayerShowing::DeleteChosen);
    action->setShortcut(Qt::Key_Delete);
}

QString LayerShowing::WhyNotShow() const
{
    if (m_trees.ChosenNodes().IsEmpty())
        return TranslateMsg("Select a layer or a group first.");
    const auto hasHidden
        = [](qint16 mode) { return mode != QuickMode::Normal && mode != QuickMode::Backdrop; };
    return AnyChosenIs(hasHidden) ? QString() : TranslateMsg("All of these layers are shown already.");
}

QString LayerShowing::WhyNotHide() const
{
    if (m_trees.ChosenNodes().IsEmpty())
        return TranslateMsg("Select a layer or a group first.");
    const auto hasShown = [](qint16 mode) { return mode != QuickMode::Hidden; };
    return AnyChosenIs(hasShown) ? QString() : TranslateMsg("All of these layers are hidden already.");
}

QString LayerShowing::WhyNotShowOnly() const
{
    if (!ModeStore::KeepsShownOnly())
        return CannotKeepText();
    return m_trees.ChosenNodes().IsEmpty() ? TranslateMsg("Select a layer or a group first.") : QString();
}

QString LayerShowing::WhyNotShowAll() const
{
    if (!ModeStore::KeepsShownOnly())
        return CannotKeepText();
    return m_shown.Count() ? QString() : TranslateMsg("\"Show Only These\" has not changed any layer.");
}

QString LayerShowing::WhyNotDelete() const
{
    const std::vector<NodeReference>& nodes = m_trees.ChosenNodes().Nodes();
    if (m_trees.ShownList() == LayerTrees::List::Groups)
        return TranslateMsg("Layers are deleted in the list of layers.");
    if (nodes.empty())
        return TranslateMsg("Select a layer first.");
    const bool canDelete = std::any_of(nodes.begin(), nodes.end(), [](const NodeReference& node) {
        return !IsSystemLayer(Client(), node.layerID);
    });
    return canDelete ? QString() : TranslateMsg("You may not delete a 'system layer'");
}

// The chosen nodes do not know their images as they are now.
bool LayerShowing::AnyChosenIs(bool (*isWanted)(qint16 quickMode)) const
{
    const std::vector<NodeReference>& nodes = m_trees.ChosenNodes().Nodes();
    return std::any_of(nodes.begin(), nodes.end(), [&](const NodeReference& node) {
        const QModelIndex index = NodeIndexes::IndexOf(View(), node);
        return index.isValid() && isWanted(NodeIndexes::NodeAt(index).image);
    });
}

void LayerShowing::DeleteChosen()
{
    emit m_trees.DeleteRequested();
}

void LayerShowing::SetHidden(bool hidden)
{
    SetHidden(m_trees.ChosenNodes(), hidden);
}

// What the user shows or hides by itself is no longer brought back.
void LayerShowing::SetHidden(const NodeSelection& nodes, bool hidden)
{
    Store([&] {
        const std::vector<qint32> layerIDs = ReadLayerIDs(Client(), nodes);
        const std::vector<LayerMode> stored = ReadQuickModes(Client(), layerIDs);
        ModeStore::Change change{ModesToStore(stored, hidden), {}};
        if (change.modes.empty())
            m_trees.SetLayerImages(stored); // the user has judged by old images
        const ShownOnly before = ModeStore::ReadShownOnly();
        if (!change.modes.empty() && !before.IsEmpty())
            change.kept = before.Without(ReadAllQuickModes(Client()), {layerIDs.begin(), layerIDs.end()});
        return change;
    });
}

void LayerShowing::ShowOnlyChosen()
{
    Store([this]() -> ModeStore::Change {
        const std::vector<qint32> layerIDs = ReadLayerIDs(Client(), m_trees.ChosenNodes());
        const std::vector<LayerMode> all = ReadAllQuickModes(Client());
        ShownOnly::Change change = ModeStore::ReadShownOnly().Show(all, {layerIDs.begin(), layerIDs.end()});
        return {std::move(change.modes), std::move(change.kept)};
    });
}

void LayerShowing::ShowAllAgain()
{
    Store([]() -> ModeStore::Change {
        return {ModeStore::ReadShownOnly().Back(ReadAllQuickModes(Client())), ShownOnly()};
    });
}

bool LayerShowing::KeepsChoice(const NodeReference& node) const
{
    const NodeSelection& chosen = m_trees.ChosenNodes();
    if (chosen.Holds(node))
        return chosen.IsMany();
    return !chosen.IsEmpty() && m_isPending && m_isPending();
}

// The image that was clicked decides for all chosen nodes.
void LayerShowing::OnImageClicked(const NodeReference& node)
{
    const NodeSelection& chosen = m_trees.ChosenNodes();
    const NodeSelection nodes = chosen.Holds(node) ? chosen : NodeSelection(node);
    const bool hidden = node.image != QuickMode::Hidden;
    GuardAfterEvent(this, &View(), [this, nodes, hidden] { SetHidden(nodes, hidden); });
}

void LayerShowing::Store(const std::function<ModeStore::Change()>& plan)
{
    const BusyPointer busy;
    const std::vector<LayerMode> modes = ModeStore::Store(plan);
    if (modes.empty())
        return;
    const QPointer self(this);
    FirstError errors;
    errors.Try([] { Client().RedrawMap(); });
    if (self)
        errors.Try([&] { Tell(modes); });
    errors.Rethrow();
}

// The host may have corrected the modes while it redrew the map.
void LayerShowing::Tell(const std::vector<LayerMode>& changed)
{
    const QSet<qint32> layerIDs = LayersOf(changed);
    FirstError errors;
    errors.Try([&] {
        m_trees.SetLayerImages(ReadQuickModesWith(Client(), {layerIDs.begin(), layerIDs.end()}));
    });
    errors.Try([&] { ReadShown(); }); // all layers were read for the change, and count as they are now
    errors.Try([&] { emit ModesChanged(layerIDs); });
    errors.Rethrow();
}

ShownBar& LayerShowing::AddBar(QTreeView& view)
{
    auto* bar = new ShownBar(view);
    connect(bar, &ShownBar::ShowAllRequested, this, [this] {
        GuardAfterEvent(this, &View(), [this] { ShowAllAgain(); });
    });
    return *bar;
}

void LayerShowing::ReadShown()
{
    m_allowed ? m_shown.Read() : m_shown.Forget();
    Retranslate();
}

void LayerShowing::FollowShown(const QSet<qint32>& layerIDs)
{
    if (!m_shown.HasChanges() || layerIDs.size() > MostLayersOneByOne) {
        ReadShown();
        return;
    }
    const std::vector<LayerMode> now = ReadQuickModes(Client(), {layerIDs.begin(), layerIDs.end()});
    qsizetype(now.size()) == layerIDs.size() ? m_shown.Follow(now) : m_shown.Read();
    Retranslate();
}

void LayerShowing::Retranslate()
{
    const std::optional<ShownCount>& count = m_shown.Count();
    for (ShownBar* bar : {&m_groupBar, &m_layerBar})
        count ? bar->ShowCount(*count) : bar->ShowNothing();
}

} // namespace Orvane
