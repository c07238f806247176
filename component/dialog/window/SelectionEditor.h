// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyPanel.h"
#include "component/dialog/place/ListTab.h"
#include "component/dialog/trees/NodeKey.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"
#include "component/model/LayerStyleLoading.h"

#include <QObject>
#include <QSet>

#include <optional>

class QWidget;

namespace Orvane {

class LayerCommands;
class LayerTrees;
class QuickModeToolbar;
struct AppliedEdits;
struct PanelEdits;
enum class ApplyOutcome;

/// What the dialog edits: the current node, the selection record, and whether the controls hold edits that
/// are not applied yet.
///
/// Loading a node copies its values from the database to the record and to the controls; applying copies them
/// from the controls to the database. All members may raise what the host and its database raise; the edits
/// are then kept, except after Load.
class SelectionEditor : public QObject
{
    Q_OBJECT

public:
    /// The parts that show the current node, and those that provide it.
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
    /// Marks the controls as edited or as not edited; their values stay.
    void SetModified(bool modified);

    /// The tab determines what can be edited; it takes effect with the next load.
    void SetTab(ListTab tab) { m_tab = tab; }

    /// Shows the dialog's current node. If it cannot be read, nothing is shown, not another node's values.
    void Load();
    /// As Load, but if the node cannot be read, the edits stay.
    void Cancel();
    /// Reads the current node again; the controls that the user has edited keep their values.
    void Follow();
    /// True if the node that is shown is one of these layers, or a group with one of them.
    bool HasLayerOf(const QSet<qint32>& layerIDs) const;
    /// Covers the controls without reading anything: for the Schemes tab, until the next Load. The mode and
    /// the code, which stay in sight, are those that were read.
    void CoverUp();
    /// Shows that no node is selected. Never raises.
    void ShowNothing();

    /// Writes the edits to the layers of the current node and then shows what is stored; does nothing without
    /// edits. Where edited values were changed elsewhere, the host is asked first, who may destroy the form.
    /// If the node is gone, or a group has no layers left, the user is told, and the edits stay. False if the
    /// user cancelled or the form was destroyed.
    bool Apply();

    /// If there are edits, asks whether to apply them and does so if the answer is Yes. False if the form was
    /// destroyed: the host may close it while the question waits. Raises if the user then cancels.
    bool ConfirmPendingChanges();

signals:
    /// The controls now hold edits, or no longer hold any.
    void ModifiedChanged(bool modified);
    /// Another node is shown, or none.
    void Shown(bool isNode);

private:
    struct Selection {
        std::optional<NodeReference> node; ///< its image is the mode that its rows hold
        LayerStyle record;
        ReadingResult reading;
        bool isSystemLayer = false;
    };

    /// What the edits started from.
    struct Origin {
        LayerStyle style;
        qint16 mode = 0;
        std::vector<SeenLayer> seen; ///< the layers of the node
    };

    static Selection Read(const std::optional<NodeReference>& node);
    std::optional<PropertyPanel::Fault> Show(const Selection& selection);
    void ShowOrNothing(const Selection& selection);
    void ReportFault(const Selection& selection, const std::optional<PropertyPanel::Fault>& unshown);
    PanelEdits ReadEdits() const;
    /// Edits are applied to the node that they were made for, or not at all.
    bool HoldsCurrentNode() const;
    void Keep(const Selection& selection);
    void KeepOriginOfEdits(const Origin& before);
    bool IsEdited(qint16 slot) const;
    AppliedEdits Write(const PanelEdits& edits);
    void Finish(ApplyOutcome outcome);
    void ReportGoneNode();

    QWidget& m_form;
    Parts m_parts;
    std::optional<NodeReference> m_current; // as it was when the record was read
    Origin m_origin;
    QString m_reportedFault; // of the node shown
    ListTab m_tab = ListTab::Groups;
    bool m_modified = false;
};

} // namespace Orvane
