// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerColumns.h>
#include <orvane/hostkit/schemes/SchemeDetails.h>

#include <QHash>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class ILayerStore;

/// The tables of a layer database that hold its schemes: LayerSchemes has one row per scheme, and
/// LayerSchemeValues one row per layer and scheme. Deleting a layer deletes its rows. HostTables keeps their
/// version under "LayerSchemes".
///
/// A scheme that does not hold a property has NULL in its column. Earlier programs do not know such schemes
/// and would load NULL, so the version is a higher one while there is one.
class SchemeTables
{
public:
    /// An ID that no scheme has.
    static constexpr qint32 NoScheme = 0;
    /// The version of the tables that is written, and the newest one that can be read. A new column that
    /// schemes keep changes the tables.
    static constexpr qint32 Version = NewestLayerColumn();
    /// The same for tables with a scheme that does not hold everything.
    static constexpr qint32 PartialVersion = Version + 1000;

    /// database: not owned; outlives this object.
    explicit SchemeTables(ILayerStore& database) : m_database(database) { }

    /// Creates the tables that are missing, and brings older ones up to date: if schemes have no values for a
    /// column, they get the layers' own values for it.
    void Create();
    /// True when the tables exist and contain a scheme. Brings older tables up to date; in a store that
    /// cannot be written, these count as missing. Raises HostError::TablesTooNew for newer ones.
    bool HaveSchemes();

    /// Stores the version that the schemes need now, after something else has changed their rows. Does
    /// nothing if the tables are missing, older or newer.
    void RefreshVersion();

    /// The members below need the tables.

    /// All names, in the order of creation.
    QStringList Names();
    /// All schemes, in the order of creation.
    std::vector<SchemeDetails> All();
    /// One of them; a whole scheme without a name if there is none with that ID.
    SchemeDetails DetailsOf(qint32 schemeID);
    /// The current scheme.
    SchemeDetails Current();
    /// Its name.
    QString CurrentName() { return Current().name; }
    /// The ID of the scheme of that name, or NoScheme if there is none.
    qint32 IDOf(const QString& name);

    /// Adds a whole scheme without values and returns its ID.
    qint32 Insert(const QString& name);
    /// Makes schemes with the names and heads of these, without values; those of the same names lose theirs.
    /// Returns the IDs by the IDs of these schemes.
    QHash<qint32, qint32> Replace(const std::vector<SchemeDetails>& schemes);
    void MakeCurrent(qint32 schemeID);
    /// What the scheme holds.
    SchemeParts HoldsOf(qint32 schemeID) { return DetailsOf(schemeID).holds; }
    /// Says what the scheme holds; its values stay as they are. holds: at least one.
    void SetHolds(qint32 schemeID, SchemeParts holds);
    /// Says what the scheme holds and when it was saved, as another one; its name stays.
    void SetHead(qint32 schemeID, const SchemeHead& head);
    /// Says when the values were taken from the layers; invalid for not known.
    void SetSaved(qint32 schemeID, const QDateTime& saved);
    /// Says in which order the schemes stand: those of names first, all others have no place. Other names are
    /// left out.
    void SetOrder(const QStringList& names);
    /// Says which scheme is loaded when the map is opened; NoScheme for none.
    void SetAtOpening(qint32 schemeID);
    /// Removes only the values of a scheme.
    void DropValues(qint32 schemeID);
    /// Removes a scheme and its values.
    void Remove(qint32 schemeID);

private:
    bool AreCurrent();
    QHash<QString, qint32> IDs();
    void StoreHead(qint32 schemeID, const SchemeHead& head);
    bool HaveDetails();
    bool IsTooNew();
    void StoreVersion();
    bool HasRow();
    bool HasAllColumns();
    void AddMissingColumns();

    ILayerStore& m_database;
};

} // namespace Orvane
