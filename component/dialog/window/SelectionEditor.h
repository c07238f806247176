// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"
#include "component/dialog/panel/PropertyPanel.h"
#include "component/dialog/place/ListTab.h"
#include "component/dialog/trees/NodeSelection.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"
#include "component/model/LayerStyleLoading.h"

#include <QObject>
#include <QSet>
#include <QString>

#include <optional>
#include <vector>

class QWidget;

namespace Orvane {

class LayerCommands;
class LayerTrees;
class QuickModeToolbar;
struct AppliedEdits;
struct PanelEdits;
enum class ApplyOutcome;

/// What the dialog edits: the chosen nodes, the selection record, and whether the controls hold edits that
/// are not applied yet.
///
/// One node is edited as itself; several nodes as the layers that they stood for when they were read. Loading
/// copies their values from the database to the record and to the controls; applying copies them
/// from the controls to the database. All members may raise what the host and its database raise; the edits
/// are then kept, except after Load.
class SelectionEditor : public QObject
{
    Q_OBJECT

public:
    /// The parts that show the chosen nodes, and those that provide them.
    struct Parts {
        LayerTrees& trees;
        PropertyPanel& panel;
        QuickModeToolbar& quickModes;
        LayerCommands& commands;
        SelectedRendererStyle selectedStyle; ///< the one that the panel shows
    };

    /// None is owned; all outlive this object. form: the owner of message boxes.
    SelectionEditor(QWidget& form, const Parts& parts);

    /// True while the controls hold edits.
    bool IsModified() const { return m_modified; }
    /// The chosen nodes' name and settings as they were read, without edits; nothing if none is shown.
    struct ShownSettings {
        QString name; ///< of the node, or the number of layers
        LayerStyle style;
        qint16 quickMode = 0;
    };
    std::optional<ShownSettings> Settings() const;

    /// Marks the controls as edited or as not edited; their values stay.
    void SetModified(bool modified);

    /// The tab determines what can be edited; it takes effect with the next load.
    void SetTab(ListTab tab) { m_tab = tab; }

    /// Shows the dialog's chosen nodes. If one cannot be read, nothing is shown, not other nodes' values.
    void Load();
    /// As Load, but if a node cannot be read, the edits stay.
    void Cancel();
    /// Reads the chosen nodes again; the controls that the user has edited keep their values.
    void Follow();
    /// As Follow, after these layers have changed and no others: of many layers that are shown, it reads only
    /// these where it can.
    void FollowLayers(const QSet<qint32>& layerIDs);
    /// As Follow, after the quick modes of these layers were changed at once: the mode shown is the stored
    /// one, and a mode that is not applied yet is dropped. Does nothing if there are edits and none of these
    /// layers is shown.
    void FollowModes(const QSet<qint32>& layerIDs);
    /// True if one of the layers that are shown still exists, or of the group that is shown.
    bool HasExistingLayer() const;
    /// Covers the controls without reading anything: for the Schemes tab, until the next Load. The mode and
    /// the code, which stay in sight, are those that were read.
    void CoverUp();
    /// Shows that no node is selected. Never raises.
    void ShowNothing();

    /// Writes the edits to the layers of the chosen nodes and then shows what is stored; does nothing without
    /// edits. Where edited values were changed elsewhere, the host is asked first, who may destroy the form.
    /// If all layers are gone, the user is told, and the edits stay. False if the user cancelled or the form
    /// was destroyed.
    bool Apply();
    /// As Apply, for a command that may be run again after it has raised: if the edits were stored then, and
    /// only showing what is stored failed, it shows that.
    void ApplyOrRead();

    /// If there are edits, asks whether to apply them and does so if the answer is Yes. False if the form was
    /// destroyed: the host may close it while the question waits. Raises if the user then cancels.
    bool ConfirmPendingChanges();

signals:
    /// The controls now hold edits, or no longer hold any.
    void ModifiedChanged(bool modified);
    /// Edits of these layers were stored, and what is stored is shown.
    void Applied(const QSet<qint32>& layerIDs);
    /// Other nodes are shown, or none.
    void Shown(bool isNode);

private:
    /// What is shown and edited: one node, several, or none.
    struct Target {
        std::optional<NodeReference> node; ///< its image is the mode that the rows hold; of several, one
        NodeSelection nodes;
        std::vector<qint32> layerIDs; ///< of several nodes
    };

    struct Selection {
        Target target;
        LayerStyle record;
        ReadingResult reading;
        bool isSystemLayer = false;
    };

    /// What the edits started from.
    struct Origin {
        LayerStyle style;
        qint16 mode = 0;
        std::vector<SeenLayer> seen; ///< the layers of the nodes
    };

    /// True if the node that is shown is one of these layers, or a group with one of them.
    bool HasLayerOf(const QSet<qint32>& layerIDs) const;
    bool RereadLayers(const QSet<qint32>& layerIDs, Selection& selection) const;
    void FollowTo(const Selection& selection);
    Selection Read() const;
    static void ReadOne(Selection& selection);
    static void ReadMany(Selection& selection);
    std::optional<PropertyPanel::Fault> Show(const Selection& selection);
    void ShowOrNothing(const Selection& selection);
    void ReportFault(const Selection& selection, const std::optional<PropertyPanel::Fault>& unshown);
    void ShowCommands(const Selection& selection);
    PanelEdits ReadEdits() const;
    /// Edits are applied to the nodes that they were made for, or to what is left of them, or not at all.
    bool HoldsChosenNodes() const;
    bool IsMany() const { return m_shown.target.nodes.IsMany(); }
    std::vector<qint32> LayerIDs() const;
    qsizetype Layers() const { return qsizetype(m_origin.seen.size()); }
    QString NameOfShown() const;
    void Keep(const Selection& selection);
    void KeepOriginOfEdits(const Origin& before);
    bool IsEdited(qint16 slot) const;
    bool HasEditedSlot() const;
    AppliedEdits Write(const PanelEdits& edits);
    AppliedEdits WriteToShown(const PanelEdits& edits);
    void Finish(ApplyOutcome outcome);
    void ReportGone();
    QString GoneNodeText() const;
    QString GoneLayersText() const;

    QWidget& m_form;
    Parts m_parts;
    Selection m_shown; // as it was read
    Origin m_origin;
    QString m_reportedFault; // of the node shown
    ListTab m_tab = ListTab::Groups;
    bool m_modified = false;
};

} // namespace Orvane
