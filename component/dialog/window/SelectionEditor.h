// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/ListTab.h"
#include "component/dialog/trees/NodeKey.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"

#include <QObject>

#include <optional>

class QWidget;

namespace Orvane {

class LayerCommands;
class LayerTrees;
class PropertyPanel;
class QuickModeToolbar;
struct PanelEdits;

/// What the dialog edits: the current node, the selection record, and whether the controls hold edits that
/// are not applied yet.
///
/// The database flows into the record and on to the controls when a node is loaded, and from the controls
/// back into the database when it is applied. All members may raise what the host and its database raise;
/// what was edited is then still there, except after Load.
class SelectionEditor : public QObject
{
    Q_OBJECT

public:
    /// What shows the current node, and where it comes from.
    struct Parts {
        LayerTrees& trees;
        PropertyPanel& panel;
        QuickModeToolbar& quickModes;
        LayerCommands& commands;
        SelectedRendererStyle selectedStyle; ///< that the panel shows
    };

    /// None is owned; all outlive this object. form: owner of message boxes.
    SelectionEditor(QWidget& form, const Parts& parts);

    /// True while the controls hold edits.
    bool IsModified() const { return m_modified; }
    /// Marks the controls as edited, or forgets that they were; they stay as they are.
    void SetModified(bool modified);

    /// The tab decides what of the selection may be edited; it counts from the next load on.
    void SetTab(ListTab tab) { m_tab = tab; }

    /// Shows the dialog's current node. When it cannot be read nothing is shown, not another node's values.
    void Load();
    /// As Load, but when the node cannot be read, the edits stay.
    void Cancel();
    /// Shows that no node is selected. Never raises.
    void ShowNothing();

    /// Writes the edits to the layers of the current node and shows what is stored then; does nothing without
    /// edits.
    void Apply();

    /// Asks whether to apply the edits, if there are any, and does so. False when the form is gone: the host
    /// may end it while the question waits.
    bool ConfirmPendingChanges();

signals:
    /// The controls came to hold edits, or hold none any longer.
    void ModifiedChanged(bool modified);
    /// Another node is shown, or none.
    void Shown(bool isNode);

private:
    struct Selection {
        std::optional<NodeReference> node;
        LayerStyle record;
        bool isSystemLayer = false;
    };

    static Selection Read(const std::optional<NodeReference>& node);
    void Show(const Selection& selection);
    void ShowOrNothing(const Selection& selection);
    PanelEdits ReadEdits() const;
    /// Edits go to the node that they were made for, or nowhere.
    bool HoldsCurrentNode() const;
    bool Write(const NodeReference& node);

    QWidget& m_form;
    Parts m_parts;
    LayerStyle m_record;
    std::optional<NodeReference> m_current; // as it was when the record was read
    ListTab m_tab = ListTab::Groups;
    bool m_modified = false;
};

} // namespace Orvane
