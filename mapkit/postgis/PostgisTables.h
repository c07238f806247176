// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/ServerTables.h"
#include "store/opening/ServerQueries.h"

#include <memory>

namespace Orvane {

class IServerLogin;

/// The PostGIS tables on a PostgreSQL server as data of layers. Tables, partitioned tables and materialized
/// views are read; views, foreign tables and tables with policies are not, because reading them could run
/// what others have written.
///
/// Each call makes a connection of its own. Features have the value of the primary key as their ID if it is
/// one whole number, otherwise none.
class PostgisTables : public ServerTables
{
public:
    /// server: as ServerMaps names it. login: asked on the thread of the call; nullptr for nobody.
    PostgisTables(const QString& server, std::shared_ptr<IServerLogin> login);

    QStringList Names(Progress& progress) const override;
    SourceLayer Describe(const QString& layer, Progress& progress) const override;
    SourceDetails Details(const QString& layer) const override;
    FeatureSet Read(const LayerSource& source, const QString& mapSystem, Progress& progress) const override;
    std::vector<SourceField> Fields(const QString& layer) const override;
    std::unordered_map<qint64, FieldValue>
    ReadField(const LayerSource& source, const QString& field, Progress& progress) const override;
    std::vector<FeatureAttribute> Attributes(const QString& layer, qint64 featureID) const override;

private:
    ServerMaps::Access AccessFor(const Progress* progress = nullptr) const;

    QString m_server;
    std::shared_ptr<IServerLogin> m_login;
};

} // namespace Orvane
