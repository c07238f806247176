// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/SchemeTables.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Orvane {

class SqliteLayerDatabase;

/// Named sets of layer settings, kept in the layer database's own tables LayerSchemes and LayerSchemeValues,
/// which are made when they are missing.
///
/// A scheme holds its own values of every edited column of every layer that existed when it was saved: the
/// six flags, colours, styles, thickness, scale range, draw priority, renderer style and quick mode; not name
/// and code. Each operation is one transaction of a few statements, whatever the number of layers. The first
/// use of a database without schemes creates the scheme "Standard" from the layers as they are; a read-only
/// database without schemes only pretends to have it.
class LayerSchemes
{
    Q_DECLARE_TR_FUNCTIONS(LayerSchemes)

public:
    /// database: not owned; outlives this object.
    explicit LayerSchemes(SqliteLayerDatabase& database) : m_database(database), m_tables(database) { }

    /// All scheme names, ordered for a person: without case, numbers by value.
    QStringList Names();
    /// The name of the current scheme; there always is one.
    QString Current();

    /// As Current, but makes no scheme: for a mere look at a map.
    QString CurrentName();

    /// Creates a scheme from the layers as they are and makes it current. Raises HostError::DuplicateScheme.
    void Create(const QString& name);
    /// Stores the layers as they are into the scheme. Raises HostError::UnknownScheme.
    void Save(const QString& name);
    /// Makes the scheme current, gives the layers its values, and returns the layers that had others. Layers
    /// made since the scheme was saved keep their values. Raises HostError::UnknownScheme.
    QSet<qint32> Load(const QString& name);
    /// Removes the scheme. Was it current, the first of the others becomes current, and the layers stay as
    /// they are. Raises HostError::UnknownScheme, and HostError::LastScheme for the only one.
    void Delete(const QString& name);

    /// The number of the scheme in the database's tables. Raises HostError::UnknownScheme.
    qint32 IDOf(const QString& name);

    /// The layers whose values are not those of the current scheme, or that it does not know; none in a
    /// database without schemes, which stays so.
    QSet<qint32> LayersThatDiffer();
    /// Those of these layers, each sought by its ID.
    QSet<qint32> LayersThatDiffer(const QSet<qint32>& layerIDs);

private:
    bool IsReadable();
    void MakeStandard();
    qint32 CurrentID();
    void StoreValues(qint32 schemeID);

    SqliteLayerDatabase& m_database;
    SchemeTables m_tables;
};

} // namespace Orvane
