// SPDX-License-Identifier: MIT
// One layer that is made, and one that is deleted, in a large map.
#include "benchmarks/layers/BareSql.h"
#include "benchmarks/layers/DialogDesk.h"
#include "benchmarks/layers/LayerJobs.h"
#include "benchmarks/layers/MapCopy.h"

#include <QAbstractButton>

#include <memory>
#include <optional>
#include <utility>

namespace Orvane::Benchmarks {

namespace {

/// The fewest statements that do it. Which ID and code are free is known beforehand.
class BareLayer
{
public:
    explicit BareLayer(const QString& path) : m_map(path), m_sql(m_map.Path())
    {
        m_insert.push_back(m_sql.Prepared(
            "INSERT INTO Layers (LayerID, Name, Code, Visible) VALUES (2000000, 'New layer', 30000, 1)"));
        m_delete.push_back(m_sql.Prepared("DELETE FROM LayerGroupMembers WHERE LayerID = 2000000"));
        m_delete.push_back(m_sql.Prepared("DELETE FROM Layers WHERE LayerID = 2000000"));
    }

    void Insert() { m_sql.RunAll(m_insert); }
    void Delete() { m_sql.RunAll(m_delete); }

private:
    MapCopy m_map;
    BareSql m_sql;
    std::vector<BareSql::Statement> m_insert;
    std::vector<BareSql::Statement> m_delete;
};

/// A host with a map of its own, without the dialog.
class LayerHost
{
public:
    explicit LayerHost(const QString& path) : m_map(path), m_database(SqliteLayerDatabase::Open(m_map.Path()))
    {
    }

    void Insert() { m_layerID = Host().CreateLayer(); }
    void Delete()
    {
        if (const std::optional<qint32> layerID = std::exchange(m_layerID, std::nullopt))
            Host().DeleteLayer(*layerID);
    }

private:
    IStyleEditorClient& Host() { return m_client; }

    MapCopy m_map;
    std::unique_ptr<SqliteLayerDatabase> m_database;
    StandardShellServices m_services;
    ConfirmingClient m_client{*m_database, m_services};
    std::optional<qint32> m_layerID;
};

/// The dialog, and a user who presses its buttons. A new layer is chosen, so Delete is about that one.
class LayerDesk
{
public:
    explicit LayerDesk(const QString& path) : m_map(path), m_desk(m_map.Path(), QStringLiteral("LAYERS")) { }

    void Insert()
    {
        Press("cmdNewLayer");
        m_isThere = true;
    }

    void Delete()
    {
        if (std::exchange(m_isThere, false))
            Press("cmdDeleteLayer");
    }

private:
    void Press(const char* name)
    {
        auto& button = m_desk.Find<QAbstractButton>(name);
        if (!button.isEnabled())
            qFatal("the button %s cannot be pressed", name);
        button.click();
        Desk::Paint();
    }

    MapCopy m_map;
    OpenDesk m_desk;
    bool m_isThere = false;
};

template <typename Place> Work Inserting(const QString& path, const JobSize&)
{
    auto place = std::make_shared<Place>(path);
    return {[place] { place->Delete(); }, [place] { place->Insert(); }};
}

template <typename Place> Work Deleting(const QString& path, const JobSize&)
{
    auto place = std::make_shared<Place>(path);
    return {[place] { place->Insert(); }, [place] { place->Delete(); }};
}

const Registration Registrations[] = {
    {Job::NewLayer, BareLevel, Inserting<BareLayer>}, {Job::NewLayer, "host", Inserting<LayerHost>},
    {Job::NewLayer, "dialog", Inserting<LayerDesk>},  {Job::DeleteLayer, BareLevel, Deleting<BareLayer>},
    {Job::DeleteLayer, "host", Deleting<LayerHost>},  {Job::DeleteLayer, "dialog", Deleting<LayerDesk>},
};

} // namespace

} // namespace Orvane::Benchmarks
