// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/pasting/PanelSettings.h"
#include "component/dialog/pasting/frmPasteSettings.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QMenu;
class QTreeView;

namespace Orvane {

class LayerShowing;
class LayerTrees;
class PropertyPanel;

/// "Copy Settings" and "Paste Settings..." in the nodes' menu, and their keys in the lists. What is copied
/// are the settings that the panel shows of the chosen nodes; they are pasted into all layers of the chosen
/// nodes at once, all or none, in one transaction with one redraw. Name and code are never among them.
class SettingsPasting : public QObject
{
    Q_OBJECT

public:
    /// What the panel shows of the chosen nodes.
    struct Shown {
        PanelSettings settings;
        QString name; ///< of the layer or group, or the number of layers
    };

    /// What the dialog around it provides. All may raise what the host raises.
    struct Dialog {
        /// Asks about edits that are not applied yet; false if the dialog was destroyed meanwhile.
        std::function<bool()> confirmEdits;
        /// The settings of the chosen nodes as they were read; nothing if none are shown.
        std::function<std::optional<Shown>()> shown;
        /// The renderer styles that the host lists.
        std::function<std::vector<RendererStyle>()> rendererStyles;
    };

    /// showing: fills the menu. panel: names the settings. views: of the trees. None is owned; all outlive
    /// this object.
    SettingsPasting(
        LayerTrees& trees, LayerShowing& showing, const PropertyPanel& panel,
        const std::vector<QTreeView*>& views, QObject* parent = nullptr);

    /// Call it once, before the user can do anything.
    void SetDialog(Dialog dialog) { m_dialog = std::move(dialog); }

signals:
    /// Settings were stored; what the panel shows is out of date.
    void Pasted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FillMenu(QMenu& menu);
    void ActAfterEvent(const QString& whyNot, void (SettingsPasting::*act)());
    QString WhyNotCopy() const;
    QString WhyNotPaste() const;
    void Copy();
    void Paste();
    std::optional<SettingSet> Ask(size_t layers, const std::vector<frmPasteSettings::Row>& rows);
    void Store(const std::vector<qint32>& layerIDs, const PanelSettings& settings);
    void Tell(const std::vector<qint32>& layerIDs, bool areModesNew);
    QString TargetText(size_t layers) const;
    QString NoLayersText() const;
    QTreeView* View() const;

    LayerTrees& m_trees;
    const PropertyPanel& m_panel;
    std::vector<QTreeView*> m_views;
    Dialog m_dialog;
};

} // namespace Orvane
