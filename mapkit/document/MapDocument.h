// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/document/RenderingTable.h"
#include "mapkit/document/SourceTable.h"
#include "mapkit/looks/LayerLook.h"

#include <QString>

#include <memory>
#include <vector>

namespace Orvane {

class ILayerStore;

/// What a new layer begins with.
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
};

/// A map file: the layer database, and in it the tables LayerSources, which says where each layer's features
/// come from, LayerRendering and MapSettings. Changes are stored as they are made.
///
/// Data that was moved together with the map, or beside it, is found again. All calls are made on the
/// user-interface thread; errors are those of the database.
class MapDocument
{
public:
    /// A map without a file, which ends with the object.
    static std::unique_ptr<MapDocument> Untitled();
    /// Makes a new file; raises when there is one already.
    static std::unique_ptr<MapDocument> Create(const QString& path);
    /// Makes a new file in place of one. When it cannot be made, or the old one is open anywhere, that stays.
    static std::unique_ptr<MapDocument> CreateOver(const QString& path);
    /// Opens a map file.
    static std::unique_ptr<MapDocument> Open(const QString& path);
    /// Opens a copy of a map file in the original's name: its data are sought, and kept, from where the
    /// original lies, and Path() is that one.
    static std::unique_ptr<MapDocument> OpenCopy(const QString& copy, const QString& original);
    ~MapDocument();

    /// Removes a map file that is not open, with what SQLite keeps beside it; a missing one changes nothing.
    static void Remove(const QString& path);

    /// Stores a copy in a new file, which replaces one of that name. When it cannot be stored, or that one is
    /// open anywhere, it raises, and that one stays.
    void SaveCopy(const QString& path) const;

    ILayerStore& Database() const { return *m_database; }
    /// Absolute; empty for an untitled map.
    const QString& Path() const { return m_path; }
    /// True when that path, however it is written, leads to this map's file.
    bool IsAt(const QString& path) const;

    /// The coordinate system that the map is shown in; empty until the first data come.
    QString System() const;
    void SetSystem(const QString& system);

    /// The picture under all layers, as an absolute path; empty for none.
    QString Backdrop() const;
    void SetBackdrop(const QString& path);

    /// Adds the layer on top of the list and returns its ID.
    qint32 AddLayer(const NewLayer& layer);
    /// Adds a group at the end and returns its ID.
    qint32 AddGroup(const QString& name, bool expanded);
    /// Adds the layer at the end of the group.
    void AddMember(qint32 groupID, qint32 layerID);

    /// Where the layers' features come from, with absolute paths.
    std::vector<LayerSource> Sources() const;
    /// Gives the layer its data, in place of those it has.
    void SetSource(const LayerSource& source);
    /// What the layers' renderer styles work with.
    RenderingTable& Renderings() { return m_renderings; }
    const RenderingTable& Renderings() const { return m_renderings; }
    bool HasLayers() const;

private:
    MapDocument(std::unique_ptr<ILayerStore> database, const QString& path);
    qint32 NextOf(const QString& expression, const QString& table) const;

    std::unique_ptr<ILayerStore> m_database;
    QString m_path;
    SourceTable m_sources;
    RenderingTable m_renderings;
};

} // namespace Orvane
