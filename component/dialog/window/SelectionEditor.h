// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/ListTab.h"
#include "component/dialog/trees/NodeKey.h"
#include "component/model/LayerStyle.h"

#include <QObject>

#include <optional>

class QWidget;

namespace Orvane {

namespace Ui {
class frmLayerStyles;
}

class EditorParts;

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
    /// None is owned; all outlive this object.
    SelectionEditor(QWidget& form, Ui::frmLayerStyles& ui, EditorParts& parts);

    /// True while the controls hold edits.
    bool IsModified() const { return m_modified; }
    /// Marks the controls as edited, or forgets that they were; they stay as they are.
    void SetModified(bool modified);

    /// The tab decides what of the selection may be edited; it counts from the next load on.
    void SetTab(ListTab tab) { m_tab = tab; }

    /// Shows the dialog's current node. When it cannot be read nothing is shown, not another node's values.
    void Load();
    /// Reads the current node anew, which drops all edits; they stay when it cannot be read. What was read
    /// but cannot be shown shows nothing.
    void Cancel();
    /// Shows that no node is selected. Never raises.
    void ShowNothing();

    /// Writes the edits to the layers of the current node and shows what is stored then; does nothing without
    /// edits.
    void Apply();

    /// Asks whether to apply the edits, if there are any, and does so. False when the form is gone: the host
    /// may end it while the question waits.
    bool ConfirmPendingChanges();

private:
    struct Selection {
        std::optional<NodeReference> node;
        LayerStyle record;
        bool isSystemLayer = false;
    };

    static Selection Read(const std::optional<NodeReference>& node);
    void Show(const Selection& selection);
    void ShowCover() const;
    /// Edits go to the node that they were made for, or nowhere.
    bool HoldsCurrentNode() const;
    bool Write(const NodeReference& node);

    QWidget& m_form;
    Ui::frmLayerStyles& m_ui;
    EditorParts& m_parts;
    LayerStyle m_record;
    std::optional<NodeReference> m_current; // as it was when the record was read
    ListTab m_tab = ListTab::Groups;
    bool m_modified = false;
};

} // namespace Orvane
