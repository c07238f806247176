// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

#include <optional>
#include <vector>

namespace Orvane {

class ILayerStore;

/// The themes of a map: named sets of its layers, kept in the map file's own tables Themes and ThemeLayers,
/// which Prepare makes. A deleted layer is removed from all themes. Each operation is one
/// transaction.
class MapThemes
{
public:
    struct Theme {
        qint32 id = 0;
        QString name;
    };

    /// database: not owned; outlives this object.
    explicit MapThemes(ILayerStore& database) : m_database(database) { }

    /// All themes, ordered by name for a user.
    std::vector<Theme> All() const;
    /// The theme of exactly that name.
    std::optional<Theme> Find(const QString& name) const;
    /// Empty for a theme that does not exist.
    QString NameOf(qint32 themeID) const;
    QSet<qint32> LayersOf(qint32 themeID) const;

    /// True when a layer is visible, not hidden by its quick mode, and listed by the layer control.
    bool HasVisibleLayers() const;
    /// Makes the tables of themes if there are none yet. Call it before the changes of a step are recorded.
    void Prepare();
    /// Makes a theme of the visible layers and returns its ID; an existing theme of that name gets these
    /// layers instead of its own.
    qint32 StoreVisibleLayers(const QString& name);
    /// Adds the layer to the theme, unless it is there.
    void AddLayer(qint32 themeID, qint32 layerID);
    /// Raises the error of the database if another theme has that name.
    void Rename(qint32 themeID, const QString& name);
    /// Removes the theme; its layers stay.
    void Remove(qint32 themeID);

private:
    bool HasTables() const;

    ILayerStore& m_database;
};

} // namespace Orvane
