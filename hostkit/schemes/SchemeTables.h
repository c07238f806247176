// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerColumns.h>

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace Orvane {

class ILayerStore;

/// The tables of a layer database that hold its schemes: LayerSchemes has one row per scheme, and
/// LayerSchemeValues one row per layer and scheme. Deleting a layer deletes its rows. HostTables keeps their
/// version under "LayerSchemes".
class SchemeTables
{
public:
    /// An ID that no scheme has.
    static constexpr qint32 NoScheme = 0;
    /// The version of the tables that is written, and the newest one that can be read. A new column that
    /// schemes keep changes the tables.
    static constexpr qint32 Version = NewestLayerColumn();

    /// database: not owned; outlives this object.
    explicit SchemeTables(ILayerStore& database) : m_database(database) { }

    /// Creates the tables that are missing, and brings older ones up to date: if schemes have no values for a
    /// column, they get the layers' own values for it.
    void Create();
    /// True when the tables exist and contain a scheme. Brings older tables up to date; in a store that
    /// cannot be written, these count as missing. Raises HostError::TablesTooNew for newer ones.
    bool HaveSchemes();

    /// The members below need the tables.

    /// All names, in the order of creation.
    QStringList Names();
    /// The current scheme's name.
    QString CurrentName();
    /// The ID of the scheme of that name, or NoScheme if there is none.
    qint32 IDOf(const QString& name);

    /// Adds a scheme without values and returns its ID.
    qint32 Insert(const QString& name);
    void MakeCurrent(qint32 schemeID);
    /// Removes only the values of a scheme.
    void DropValues(qint32 schemeID);
    /// Removes a scheme and its values.
    void Remove(qint32 schemeID);

private:
    bool AreCurrent();
    bool HasRow();
    bool HasAllColumns();
    void AddMissingColumns();

    ILayerStore& m_database;
};

} // namespace Orvane
