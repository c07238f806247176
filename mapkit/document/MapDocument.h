// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/document/RenderingTable.h"
#include "mapkit/document/SourceTable.h"
#include "mapkit/looks/LayerLook.h"
#include "store/StoreOptions.h"

#include <QColor>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace Orvane {

class ILayerStore;

/// The initial values of a new layer.
struct NewLayer {
    QString name;
    DrawingValues values;
    int priority = 128; ///< 1 on top, 255 at the bottom
    bool visible = true;
    double minDenominator = 0; ///< 0: no limit
    double maxDenominator = 0; ///< 0: no limit
    QString path; ///< absolute path of the data
    QString ogrLayer;
    QString filter;
    QString system = {}; ///< coordinate system that was chosen for the data; empty: the one that they name
    GeometryChoice choice = {}; ///< which geometries of the data
    DataKind kind = DataKind::Features; ///< what the data are

    /// A raster layer, which lies below the others and shows nothing in lists of lines and fills. Name and
    /// path are missing.
    static NewLayer OfRaster();
};

/// A map file: the layer database with three more tables: LayerSources, which stores where each layer's
/// data come from, LayerRendering and MapSettings. Changes are stored as they are made.
///
/// Data is found again if it was moved together with the map, or into the folder of the map. All calls are
/// made on the user-interface thread; errors are those of the database.
class MapDocument
{
public:
    /// Puts the first content into a new map.
    using Filler = std::function<void(MapDocument& map)>;

    /// A map without a file, which exists as long as the object.
    static std::unique_ptr<MapDocument> Untitled();
    /// Makes a map file, filled by fill, which appears at that path when it is complete. If anything fails,
    /// no new file remains, and a file to be replaced stays as it was. Raises the errors of LayerStores::Make
    /// and those of fill.
    static void Make(const QString& path, IfExists ifExists, const Filler& fill = {});
    /// Creates a new file; raises if the file already exists. If it cannot be created, none remains.
    static std::unique_ptr<MapDocument> Create(const QString& path);
    /// Creates a new file that replaces an existing one. If it cannot be created, or the old file is open
    /// anywhere, the old file stays.
    static std::unique_ptr<MapDocument> CreateOver(const QString& path);
    /// Opens a map file. One of an earlier version is brought up to date.
    static std::unique_ptr<MapDocument> Open(const QString& path);
    /// Opens a copy of a map file as if it were the original: its data is found, and stored, relative to the
    /// original's location, and Path() is the path of the original.
    static std::unique_ptr<MapDocument> OpenCopy(const QString& copy, const QString& original);
    ~MapDocument();

    /// Removes a map file that is not open, together with the extra files of SQLite. Does nothing if the file
    /// is missing.
    static void Remove(const QString& path);

    /// Stores a copy in a new file, which replaces an existing file of that name. If the copy cannot be
    /// stored, or the existing file is open anywhere, this raises, and the existing file stays.
    void SaveCopy(const QString& path) const;

    ILayerStore& Database() const { return *m_database; }
    /// Absolute; empty for an untitled map.
    const QString& Path() const { return m_path; }
    /// True when that path leads to this map's file, even if it is written differently.
    bool IsAt(const QString& path) const;

    /// The coordinate system that the map is shown in; empty until the first data is added.
    QString System() const;
    void SetSystem(const QString& system);

    /// The colour under everything; white unless it was set.
    QColor Background() const;
    void SetBackground(const QColor& colour);

    /// Adds the layer on top of the list and returns its ID.
    qint32 AddLayer(const NewLayer& layer);
    /// Adds a group at the end and returns its ID.
    qint32 AddGroup(const QString& name, bool expanded);
    /// Adds the layer at the end of the group.
    void AddMember(qint32 groupID, qint32 layerID);

    /// Where the layers' data come from, with absolute paths.
    std::vector<LayerSource> Sources() const;
    /// The same for one layer; nothing if it has none.
    std::optional<LayerSource> SourceOf(qint32 layerID) const;
    /// Sets the layer's data, replacing its former data.
    void SetSource(const LayerSource& source);
    /// Sets only where the layer's data are, as it is stored.
    void SetPlace(qint32 layerID, const SourcePaths::Place& place) { m_sources.SetPlace(layerID, place); }
    /// How layers are read that are not read plainly, by layer ID: see SourceTable::ChosenReadings.
    std::map<qint32, QString> ChosenReadings() const { return m_sources.ChosenReadings(); }
    /// The settings for the layers' renderer styles.
    RenderingTable& Renderings() { return m_renderings; }
    const RenderingTable& Renderings() const { return m_renderings; }
    bool HasLayers() const;

private:
    MapDocument(std::unique_ptr<ILayerStore> database, const QString& path);
    qint32 NextOf(const QString& column, const QString& table) const;

    std::unique_ptr<ILayerStore> m_database;
    QString m_path;
    SourceTable m_sources;
    RenderingTable m_renderings;
};

} // namespace Orvane
