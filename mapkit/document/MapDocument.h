// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/document/RenderingTable.h"
#include "mapkit/document/SourceTable.h"
#include "mapkit/looks/LayerLook.h"
#include "store/StoreOptions.h"
#include "store/StoreWatcher.h"

#include <QColor>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace Orvane {

class ILayerStore;
class IServerLogin;
class ServerTables;

/// What a map on a server needs besides its place. A map in a file uses none of it.
struct MapAccess {
    IServerLogin* login = nullptr; ///< asks for passwords; nullptr for nobody. Not owned, outlives the map
    QString dataFolder = {}; ///< where relative paths of data start; absolute, empty for absolute paths only
    std::shared_ptr<const ServerTables> tables = {}; ///< reads layers that are tables on the server
};

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
    /// Makes a map, filled by fill, which appears at that path, or place on a server, when it is complete. If
    /// anything fails, no new file remains, and a file to be replaced stays as it was. Raises the errors of
    /// LayerStores::Make and those of fill.
    static void
    Make(const QString& path, IfExists ifExists, const Filler& fill = {}, const MapAccess& access = {});
    /// Creates a new file; raises if the file already exists. If it cannot be created, none remains.
    static std::unique_ptr<MapDocument> Create(const QString& path);
    /// Creates a new file that replaces an existing one. If it cannot be created, or the old file is open
    /// anywhere, the old file stays.
    static std::unique_ptr<MapDocument> CreateOver(const QString& path);
    /// Opens a map file or a map on a server. One of an earlier version is brought up to date.
    static std::unique_ptr<MapDocument> Open(const QString& path, const MapAccess& access = {});
    /// Opens a copy of a map file as if it were the original: its data is found, and stored, relative to the
    /// original's location, and Path() is the path of the original. access: of the original.
    static std::unique_ptr<MapDocument>
    OpenCopy(const QString& copy, const QString& original, const MapAccess& access = {});
    ~MapDocument();

    /// Removes a map file that is not open, together with the extra files of SQLite. Does nothing if the file
    /// is missing.
    static void Remove(const QString& path);

    /// Copies a map, of which only the store is read, and nothing is changed: from a file or a server to
    /// another file or server. The copy has all tables of the map, also those of other programs, and finds
    /// the same data. Raises the errors of LayerStores::Open and LayerStores::Make, and those of CopyStore.
    /// accessFrom, accessTo: of these places. watcher: is asked whether to go on; if not, this raises
    /// UserCancelled, and there is no copy.
    static void Copy(
        const QString& from, const QString& to, IfExists ifExists, const MapAccess& accessFrom = {},
        const MapAccess& accessTo = {}, const StoreWatcher& watcher = {});

    /// Stores a copy in a new file, or in a new map on a server. One of that name that exists already is
    /// replaced, or this raises, as ifExists says. If the copy cannot be stored, or the existing one is open
    /// anywhere, this raises too, and the existing one stays. access: of the copy.
    void
    SaveCopy(const QString& path, const MapAccess& access = {}, IfExists ifExists = IfExists::Replace) const;

    ILayerStore& Database() const { return *m_database; }
    /// Where the map is: the absolute path of its file, or its place on a server. Empty for an untitled map.
    const QString& Path() const { return m_path; }
    /// The absolute path of its file; empty for a map without one.
    QString FilePath() const;
    /// What the user calls it: the name of its file without the extension, or its name on the server. Empty
    /// for an untitled map.
    QString Name() const;
    /// True when that path leads to this map's file, even if it is written differently, or is its place on a
    /// server.
    bool IsAt(const QString& path) const;
    /// True when nothing can be changed: the user may only read the map on its server.
    bool IsReadOnly() const;
    /// What reads tables of the map's server; nullptr for a map on none.
    const std::shared_ptr<const ServerTables>& Tables() const { return m_tables; }

    /// The coordinate system that the map is shown in; empty until the first data is added.
    QString System() const;
    void SetSystem(const QString& system);

    /// The colour under everything; white unless it was set.
    QColor Background() const;
    void SetBackground(const QColor& colour);

    /// Adds the layer on top of the list and returns its ID.
    qint32 AddLayer(const NewLayer& layer);
    /// Adds many layers, each on top of the one before, in one transaction, and returns their IDs in the same
    /// order. Asks the watcher of the database after each.
    std::vector<qint32> AddLayers(const std::vector<NewLayer>& layers);
    /// Adds a group at the end and returns its ID.
    qint32 AddGroup(const QString& name, bool expanded);
    /// The same for many groups, in one transaction; returns their IDs in the same order.
    std::vector<qint32> AddGroups(const QStringList& names, bool expanded);
    /// Adds the layer at the end of the group.
    void AddMember(qint32 groupID, qint32 layerID);

    /// Where the layers' data come from, with absolute paths.
    std::vector<LayerSource> Sources() const;
    /// The same for these layers, by one query for many; those that have none are missing.
    std::vector<LayerSource> SourcesOf(const std::vector<qint32>& layerIDs) const;
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
    MapDocument(std::unique_ptr<ILayerStore> database, const QString& path, const MapAccess& access);

    void StoreLayers(const std::vector<NewLayer>& layers, const std::vector<qint32>& layerIDs);
    void StoreGroups(const QStringList& names, bool expanded, qint32 firstID, qint32 firstOrdering);

    /// Where a copy goes, and how its data and its server are found.
    struct Target {
        QString place;
        IfExists ifExists;
        MapAccess access = {};
    };

    static void
    CopyTo(ILayerStore& store, const QString& from, const SourcePaths& paths, const Target& target);

    std::unique_ptr<ILayerStore> m_database;
    QString m_path;
    std::shared_ptr<const ServerTables> m_tables;
    SourcePaths m_paths;
    SourceTable m_sources;
    RenderingTable m_renderings;
};

} // namespace Orvane
