// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace Orvane {

class SqliteLayerDatabase;

/// The tables of a layer database that hold its schemes: LayerSchemes, a row a scheme, and LayerSchemeValues,
/// a row for each layer of each scheme. A deleted layer takes its rows with it.
class SchemeTables
{
public:
    /// Given to no scheme.
    static constexpr qint32 NoScheme = 0;

    /// database: not owned; outlives this object.
    explicit SchemeTables(SqliteLayerDatabase& database) : m_database(database) { }

    /// Makes the tables where they are missing.
    void Create();
    /// True when there are tables, with a scheme in them.
    bool HaveSchemes();

    /// The members below need the tables.

    /// All names, in the order of creation.
    QStringList Names();
    /// The current scheme's name.
    QString CurrentName();
    /// The ID of the scheme of that name, NoScheme when there is none.
    qint32 IDOf(const QString& name);

    /// Adds a scheme without values and returns its ID.
    qint32 Insert(const QString& name);
    void MakeCurrent(qint32 schemeID);
    /// Removes the values of a scheme, and only them.
    void DropValues(qint32 schemeID);
    /// Removes a scheme with its values.
    void Remove(qint32 schemeID);

private:
    SqliteLayerDatabase& m_database;
};

} // namespace Orvane
