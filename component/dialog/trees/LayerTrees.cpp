// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTrees.h"

#include "component/common/Component.h"
#include "component/common/EditPermission.h"
#include "component/common/EventGuard.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/dialog/rows/LayerSamples.h"
#include "component/dialog/trees/ColumnErrorTexts.h"
#include "component/dialog/trees/LayerTreeGestures.h"
#include "component/dialog/trees/LayerTreeList.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/MissingNodes.h"
#include "component/dialog/trees/NodeStore.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerTreeReader.h"
#include "component/model/ListedName.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QPointer>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

TreeReading ReadGroups()
{
    const BusyPointer busy;
    return LoadLayerTree(
        Client(), std::nullopt, {TranslateMsg("ERROR: Group not Found"), TranslateMsg("<No Name>")});
}

ListReading ReadLayers(const IStyleFilter* filter)
{
    const BusyPointer busy;
    return ReloadLayerList(Client(), filter);
}

} // namespace

LayerTrees::LayerTrees(QTreeView* groups, QTreeView* layers, QObject* parent)
    : QObject(parent), m_groups(new LayerTreeList(groups, this)), m_layers(new LayerTreeList(layers, this)),
      m_samples(
          new LayerSamples([groups, layers] { return groups->isVisible() || layers->isVisible(); }, this))
{
    Wire(*m_groups);
    Wire(*m_layers);
}

void LayerTrees::Wire(LayerTreeList& list)
{
    connect(&list, &LayerTreeList::NodesChosen, this, [this, &list](const NodeSelection& nodes) {
        OnNodesChosen(list, nodes);
    });
    connect(&list, &LayerTreeList::CurrentClicked, this, [this, &list] {
        if (IsShown(list))
            GuardAfterEvent(this, &list.View(), [this] { emit CurrentNodeClicked(); });
    });
    connect(&list, &LayerTreeList::NodesChanged, this, &LayerTrees::NodesChanged);
    connect(&list, &LayerTreeList::NodesRead, this, &LayerTrees::NodesRead);
    connect(&list, &LayerTreeList::NameEntered, this, &LayerTrees::RenameByUser);
    connect(&list, &LayerTreeList::ExpansionChanged, this, [&list](qint32 groupID, bool expanded) {
        GuardEvent(&list.View(), [&] {
            if (WhyNotEdited().isEmpty()) // others may still look into groups
                StoreGroupExpanded(Client(), groupID, expanded);
        });
    });
    const auto mayRename
        = [this] { return !ChosenNodes().IsMany() && CurrentNode() && CanEditNode(*CurrentNode()); };
    auto* gestures = new LayerTreeGestures(&list.View(), mayRename, this);
    gestures->OpenMenusBy([this](const std::function<void()>& open) {
        m_isLeaving ? void(m_openMenu = open) : open(); // it is about the nodes that are chosen then
    });
    connect(gestures, &LayerTreeGestures::DeleteRequested, this, &LayerTrees::DeleteRequested);
    WireSamples(list, *gestures);
    connect(gestures, &LayerTreeGestures::MenuOpening, this, &LayerTrees::MenuOpening);
    // Later: the window system first gives the focus back from the menu, which would end the edit.
    const auto editLater
        = [this, &list] { GuardAfterEvent(this, &list.View(), [this] { EditCurrentName(); }); };
    connect(gestures, &LayerTreeGestures::RenameRequested, this, editLater);
    connect(&list, &LayerTreeList::NameEditWanted, this, editLater);
    // Later: an error is shown in a message box.
    connect(gestures, &LayerTreeGestures::ExpandAllRequested, this, [this, &list](bool expanded) {
        GuardAfterEvent(this, &list.View(), [this, &list, expanded] { ExpandAll(list, expanded); });
    });
}

LayerTreeList& LayerTrees::At(List list) const
{
    return list == List::Groups ? *m_groups : *m_layers;
}

bool LayerTrees::IsShown(const LayerTreeList& list) const
{
    return &list == &At(m_shown);
}

void LayerTrees::SetPendingChangesQuestion(std::function<void()> question, std::function<bool()> isPending)
{
    m_question = std::move(question);
    m_isPending = std::move(isPending);
}

void LayerTrees::SetFilter(const IStyleFilter* filter)
{
    m_filter = filter;
    m_layers->MarkStale();
}

void LayerTrees::FinishNameEdit()
{
    const QPointer<LayerTrees> self(this);
    m_groups->FinishNameEdit();
    if (self)
        m_layers->FinishNameEdit();
}

void LayerTrees::DropNameEdit()
{
    m_groups->DropNameEdit();
    m_layers->DropNameEdit();
}

void LayerTrees::LoadGroups()
{
    TreeReading reading = ReadGroups();
    const bool asks = Loses(List::Groups, MissingIn(reading.groups, *m_groups));
    if (asks) {
        if (!AskAboutChanges())
            return;
        reading = ReadGroups();
    }
    ReportFault(List::Groups, reading.fault);
    ExpireSamples();
    Replace(
        List::Groups, [&] { m_groups->ShowGroups(std::move(reading.groups)); }, asks);
}

void LayerTrees::LoadLayers()
{
    ListReading reading = ReadLayers(m_filter);
    const bool asks = Loses(List::Layers, MissingIn(reading.layers, *m_layers));
    if (asks) {
        if (!AskAboutChanges())
            return;
        reading = ReadLayers(m_filter);
    }
    ReportFault(List::Layers, reading.fault);
    ExpireSamples();
    Replace(
        List::Layers, [&] { m_layers->ShowLayers(std::move(reading.layers)); }, asks);
}

// After the event: the list is shown then, and the host may have called.
void LayerTrees::ReportFault(List list, const std::optional<ColumnError>& fault)
{
    if (!fault)
        return;
    const RunTimeError error(fault->Number(), TextOf(*fault), fault->Source());
    ReportAfterEvent(this, &At(list).View(), std::make_exception_ptr(error));
}

// A chosen node that exists but is no longer in the list can still take its pending changes.
bool LayerTrees::Loses(List list, const std::vector<NodeReference>& missing) const
{
    const bool isNeedless = m_isPending && missing.size() > 1 && !m_isPending();
    return list == m_shown && !isNeedless
        && std::any_of(missing.begin(), missing.end(), [](const NodeReference& node) {
               return NodeExists(Client(), node);
           });
}

void LayerTrees::Replace(List list, const std::function<void()>& fill, bool wasAsked)
{
    LayerTreeList& target = At(list);
    const NodeSelection before = target.Chosen();
    target.KeepChosen(HasEdits(target));
    fill();
    const NodeSelection& after = target.Chosen();
    if (list != m_shown || before.HasSameNodes(after))
        return;
    const bool hasShrunk = !after.IsEmpty() && before.HoldsAllOf(after);
    if (hasShrunk && !wasAsked)
        emit ChosenNodesGone();
    else
        emit CurrentNodeChanged();
}

void LayerTrees::Load(List list)
{
    list == List::Groups ? LoadGroups() : LoadLayers();
}

void LayerTrees::EnsureLoaded(List list)
{
    if (At(list).NeedsLoad())
        Load(list);
}

void LayerTrees::MarkStale(List list)
{
    At(list).MarkStale();
}

void LayerTrees::ShowList(List list)
{
    if (list == m_shown)
        return;
    if (AskAboutChanges())
        m_shown = list;
}

std::optional<NodeReference> LayerTrees::CurrentNode() const
{
    return At(m_shown).CurrentNode();
}

const NodeSelection& LayerTrees::ChosenNodes() const
{
    return At(m_shown).Chosen();
}

QString LayerTrees::CurrentText() const
{
    return At(m_shown).CurrentText();
}

// Do not ask a question or show an error during an event of the view: the view may be destroyed meanwhile.
void LayerTrees::OnNodesChosen(LayerTreeList& list, const NodeSelection& nodes)
{
    if (!HasEdits(list) && !list.HoldsOther()) {
        MoveByUser(list, nodes);
        return;
    }
    m_isLeaving = true;
    QMetaObject::invokeMethod(
        this, [this, &list, nodes] { LeaveByUser(list, nodes); }, Qt::QueuedConnection);
}

void LayerTrees::LeaveByUser(LayerTreeList& list, const NodeSelection& nodes)
{
    const QPointer<LayerTrees> self(this);
    const bool hasMoved = MoveByUser(list, nodes);
    if (!self)
        return;
    m_isLeaving = false;
    const std::function<void()> openMenu = std::exchange(m_openMenu, nullptr);
    if (!hasMoved)
        return;
    GuardEvent(&list.View(), [&] {
        DropUnfound(list);
        if (openMenu && self)
            openMenu();
    });
}

// Returns false if the nodes were not chosen, or if this object was destroyed.
bool LayerTrees::MoveByUser(LayerTreeList& list, const NodeSelection& nodes)
{
    const QPointer<LayerTrees> self(this);
    try {
        return MoveTo(list, nodes) && list.Chosen().HasSameNodes(nodes);
    } catch (...) {
        if (!self)
            return false;
        list.RefuseChoice();
        ReportAfterEvent(this, &list.View(), std::current_exception());
        return false;
    }
}

// Returns false if this object was destroyed.
bool LayerTrees::MoveTo(LayerTreeList& list, const NodeSelection& nodes)
{
    if (list.Chosen().HasSameNodes(nodes))
        return true;
    if (IsShown(list) && !AskAboutChanges())
        return false;
    if (!list.Choose(nodes))
        list.RefuseChoice();
    else if (IsShown(list))
        emit CurrentNodeChanged();
    return true;
}

// Returns false if this object was destroyed: the host may close the dialog while the question waits.
bool LayerTrees::AskAboutChanges()
{
    const QPointer<LayerTrees> self(this);
    const std::function<void()> question = m_question;
    if (question && !At(m_shown).Chosen().IsEmpty())
        question();
    return self;
}

void LayerTrees::SetLayerImage(qint32 layerID, qint16 quickMode)
{
    m_groups->Model().SetQuickMode({layerID}, quickMode);
    m_layers->Model().SetQuickMode({layerID}, quickMode);
}

void LayerTrees::SetLayerImages(const std::vector<LayerMode>& modes)
{
    m_groups->Model().SetQuickModes(modes);
    m_layers->Model().SetQuickModes(modes);
}

void LayerTrees::SetGroupImage(qint32 groupID, qint16 quickMode)
{
    const std::vector<qint32> layerIDs = ReadMemberLayerIDs(Client(), groupID); // not all are listed there
    m_groups->Model().SetQuickMode(layerIDs, quickMode);
    m_layers->Model().SetQuickMode(layerIDs, quickMode);
}

void LayerTrees::SetLayerText(qint32 layerID, const QString& text)
{
    m_groups->Model().SetLayerText(layerID, text);
    m_layers->Model().SetLayerText(layerID, text);
}

void LayerTrees::ShowLayer(qint32 layerID)
{
    const QPointer<LayerTrees> self(this); // as in MoveTo
    EnsureLoaded(List::Layers);
    if (!self)
        return;
    const std::optional<LayerEntry> layer = ReadOneLayer(Client(), layerID);
    if (!layer)
        return;
    const NodeReference node{.isGroup = false, .groupID = 0, .layerID = layerID, .image = layer->quickMode};
    if (!m_layers->Model().IndexOf(node).isValid())
        m_layers->Model().InsertLayer(*layer);
    SetLayerText(layerID, layer->text);
    SetLayerImage(layerID, layer->quickMode);
    ExpireSamples();
    if (MoveTo(*m_layers, NodeSelection(node)))
        m_layers->ScrollToCurrent();
}

void LayerTrees::SetLayerName(qint32 layerID, const QString& name)
{
    Client().RenameLayer(layerID, name);
    SetLayerText(layerID, DecorateLayerName(Client().LayerDisplayName(layerID)));
}

void LayerTrees::RenameGroup(qint32 groupID, const QString& name)
{
    Client().RenameGroup(groupID, name);
    m_groups->Model().SetGroupText(groupID, name);
}

void LayerTrees::RenameByUser(const NodeReference& node, const QString& name)
{
    QTreeView* view = &At(m_shown).View();
    GuardEvent(view, [&] {
        if (name.isEmpty())
            ShowMessageBox(view, TranslateMsg("Invalid Name"), BoxStyle::OkExclamation);
        else if (node.isGroup)
            RenameGroup(node.groupID, name);
        else
            SetLayerName(node.layerID, name);
    });
}

bool LayerTrees::CanEditNode(const NodeReference& node) const
{
    return Orvane::CanEditNode(Client(), node);
}

void LayerTrees::EditCurrentName()
{
    const std::optional<NodeReference> node = ChosenNodes().IsMany() ? std::nullopt : CurrentNode();
    LayerTreeList& list = At(m_shown);
    const QModelIndex index = node ? list.IndexOf(*node) : QModelIndex();
    if (index.isValid() && !list.View().isPersistentEditorOpen(index) && CanEditNode(*node))
        list.View().edit(index);
}

void LayerTrees::ExpandAll(LayerTreeList& list, bool expanded)
{
    const BusyPointer busy;
    if (!list.IsFinding() && WhyNotEdited().isEmpty())
        StoreGroupsExpanded(Client(), list.GroupsWithout(expanded), expanded);
    list.SetAllExpanded(expanded);
}

} // namespace Orvane
