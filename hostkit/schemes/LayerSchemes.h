// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/schemes/SchemeTables.h>

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Orvane {

class ILayerStore;

/// Named sets of layer settings, kept in the layer database's own tables LayerSchemes and LayerSchemeValues,
/// which are created if they are missing.
///
/// A scheme holds its own values of every edited column of every layer that existed when it was saved: the
/// six flags, colours, styles, thickness, scale range, draw priority, renderer style and quick mode; but not
/// name and code. A partial scheme holds only some classes of these (SchemeParts.h): it is saved, loaded and
/// compared in these columns alone. Each operation is one transaction of a few statements, however many
/// layers there are. The first use of a database without schemes creates the scheme "Standard" from the
/// layers as they are; a read-only database without schemes appears to have it, but nothing is written.
class LayerSchemes
{
    Q_DECLARE_TR_FUNCTIONS(LayerSchemes)

public:
    /// database: not owned; outlives this object.
    explicit LayerSchemes(ILayerStore& database) : m_database(database), m_tables(database) { }

    /// All scheme names in the user's order; those without a place in it come last, in natural order:
    /// case-insensitive, numbers by value.
    QStringList Names();
    /// The same schemes with all that is known about them.
    std::vector<SchemeDetails> All();
    /// The name of the current scheme; there always is one.
    QString Current();

    /// As Current, but creates no scheme; for code that only reads a map.
    QString CurrentName();

    /// Creates a scheme from the layers as they are and makes it current. Raises HostError::DuplicateScheme.
    void Create(const QString& name);
    /// Creates a scheme that holds only these properties, from the layers as they are; the current scheme
    /// stays. holds: at least one. Raises HostError::DuplicateScheme.
    void Add(const QString& name, SchemeParts holds);
    /// Stores the layers' present values of what the scheme holds. Raises HostError::UnknownScheme.
    void Save(const QString& name);
    /// Makes the scheme current, gives the layers its values, and returns the layers whose values changed.
    /// Layers created since the scheme was saved keep their values. Raises HostError::UnknownScheme.
    QSet<qint32> Load(const QString& name);
    /// Whether Load would change layers. Raises HostError::UnknownScheme.
    bool WouldChange(const QString& name);
    /// Removes the scheme. If it was current, the first of the remaining schemes becomes current, and the
    /// layers stay as they are. Raises HostError::UnknownScheme, and HostError::LastScheme for the only
    /// scheme.
    void Delete(const QString& name);
    /// Gives the scheme another name. Raises HostError::UnknownScheme and DuplicateScheme.
    void Rename(const QString& name, const QString& newName);
    /// Creates a scheme with the saved values of another; the layers and the current scheme stay as they are.
    /// Raises HostError::UnknownScheme and DuplicateScheme.
    void Duplicate(const QString& name, const QString& newName);

    /// Changes what a scheme holds: for what is new, it gets the present values of the layers that are in it;
    /// the values of what it holds no more are dropped. holds: at least one. Raises HostError::UnknownScheme.
    void SetHolds(const QString& name, SchemeParts holds);
    /// Gives these schemes places in this order, and all others none; an empty list is the natural order. A
    /// name that no scheme has is left out.
    void SetOrder(const QStringList& names);
    /// The scheme that is to be loaded when the map is opened; empty for none. Creates no scheme.
    QString AtOpening();
    /// Sets it; empty for none. Raises HostError::UnknownScheme.
    void SetAtOpening(const QString& name);

    /// The ID of the scheme in the database's tables. Raises HostError::UnknownScheme.
    qint32 IDOf(const QString& name);

    /// The layers whose values differ from the current scheme, or that are not in it. Empty for a database
    /// without schemes; no scheme is created.
    QSet<qint32> LayersThatDiffer();
    /// As above, but only for these layers, which are looked up by their IDs, many in one query.
    QSet<qint32> LayersThatDiffer(const QSet<qint32>& layerIDs);
    /// How many layers differ from that scheme, or are not in it. Raises HostError::UnknownScheme.
    qsizetype CountThatDiffer(const QString& name);

private:
    bool IsReadable();
    void MakeStandard();
    void RequireUnused(const QString& name);
    void StoreValues(qint32 schemeID);
    void FillValues(qint32 schemeID, SchemeParts parts);
    void DropValues(qint32 schemeID, SchemeParts parts);

    ILayerStore& m_database;
    SchemeTables m_tables;
};

} // namespace Orvane
