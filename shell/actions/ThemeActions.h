// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <optional>

class QMenu;
class QWidget;

namespace Orvane {

class LayerControl;
class MapSession;

/// The menu of themes: makes a theme of the visible layers, opens the layer control on a theme, deletes a
/// theme. An editor on a theme has the ID "Theme:" and the theme's number; its list shows the theme's layers
/// only.
class ThemeActions : public QObject
{
    Q_OBJECT
public:
    /// Fills the menu. None is owned; all outlive this object.
    ThemeActions(QMenu& menu, LayerControl& control, QWidget& window);

    /// The commands work on the themes of this map from now on; not owned.
    void Use(MapSession& session);

    /// Opens the layer control on the theme, or brings it to the front. Raises errors of the database and of
    /// the component.
    void Open(qint32 themeID);

private:
    void Fill();
    void FillDeletions(bool hasThemes);
    void NewTheme();
    std::optional<QString> AskForName();
    bool MayReplace(const QString& name);
    void Delete(qint32 themeID);
    QString ThemeNameOf(const QString& editorID) const;
    void AddToTheme(const QString& editorID, qint32 layerID);

    QMenu& m_menu;
    QMenu* m_deletions; // owned by the menu
    LayerControl& m_control;
    QWidget& m_window;
    MapSession* m_session = nullptr;
};

} // namespace Orvane
