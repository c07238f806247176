// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

#include <map>
#include <optional>

class QMenu;
class QWidget;

namespace Orvane {

class LayerControl;
class MapSession;

/// The menu of themes: makes a theme of the visible layers, opens the layer control on a theme, renames and
/// deletes a theme. All but opening can be undone. An editor on a theme has the ID "Theme:" and the theme's
/// number; its list shows the theme's layers only.
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
    struct OpenTheme {
        QString name;
        QSet<qint32> layers;

        bool operator==(const OpenTheme&) const = default;
    };

    void Fill();
    void AddThemes(bool hasThemes);
    void NewTheme();
    std::optional<QString> AskForName(const QString& title, const QString& name = {});
    bool MayReplace(const QString& name);
    void Rename(qint32 themeID);
    void StoreName(qint32 themeID, const QString& name);
    void Delete(qint32 themeID);
    QString ThemeNameOf(const QString& editorID) const;
    void AddToTheme(const QString& editorID, qint32 layerID);
    OpenTheme Stored(qint32 themeID) const;
    void FollowHistory();
    void ShowAgain(qint32 themeID);

    QMenu& m_menu;
    QMenu* m_names; // both owned by the menu
    QMenu* m_deletions;
    LayerControl& m_control;
    QWidget& m_window;
    MapSession* m_session = nullptr;
    std::map<qint32, OpenTheme> m_open; // as their editors show them
};

} // namespace Orvane
