// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IRecordset.h>

#include <QString>

#include <memory>

namespace Orvane {

/// The host's layer database: tables Layers, LayerGroups and LayerGroupMembers.
///
/// All calls are made on the user-interface thread. Every member may raise RunTimeError with a database
/// number.
class ILayerDatabase
{
public:
    virtual ~ILayerDatabase() = default;
    ILayerDatabase(const ILayerDatabase&) = delete;
    ILayerDatabase& operator=(const ILayerDatabase&) = delete;

    /// Opens a cursor: on a query when source is SQL text (it begins with SELECT), otherwise on the table of
    /// that name, which is "Layers" or "LayerGroups". Never returns nullptr. The caller owns the cursor and
    /// destroys it before the database.
    std::unique_ptr<IRecordset> OpenRecordset(const QString& source)
    {
        return ILayerDatabase_OpenRecordset(source);
    }

    /// Begins a transaction. Transactions nest: only the outermost commit stores the changes.
    void BeginTrans() { ILayerDatabase_BeginTrans(); }

    /// Ends the innermost transaction and keeps its changes. If it raises, the transaction is still open and
    /// must be rolled back.
    void CommitTrans() { ILayerDatabase_CommitTrans(); }

    /// Ends the innermost transaction and undoes its changes. Does nothing when no transaction is open.
    void Rollback() { ILayerDatabase_Rollback(); }

protected:
    ILayerDatabase() = default;

private:
    virtual std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) = 0;
    virtual void ILayerDatabase_BeginTrans() = 0;
    virtual void ILayerDatabase_CommitTrans() = 0;
    virtual void ILayerDatabase_Rollback() = 0;
};

} // namespace Orvane
