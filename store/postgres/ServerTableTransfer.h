// SPDX-License-Identifier: MIT
#pragma once

#include "store/shared/ITableTransfer.h"

namespace Orvane {

struct PostgresSession;

/// Implements ITableTransfer in a server: rows are read and added as they come.
class ServerTableTransfer
{
public:
    /// The session outlives this object.
    explicit ServerTableTransfer(PostgresSession& session) : m_session(session) { }

    /// In bytes: a third of a page of an index, less what else is in an entry.
    static constexpr qsizetype LongestIndexedText = 2600;

    /// Each as the member of ITableTransfer.
    std::vector<qint64> CountRows(const std::vector<StoreTable>& tables);
    qint64 CountDangling(const StoreTable& table, const StoreColumn& column);
    void ReadRows(const StoreTable& table, const RowVisitor& visitor);
    void RemoveRows(const StoreTable& table);
    void AddRows(const StoreTable& table, const std::function<void(const RowVisitor& add)>& source);
    void FinishRows(const std::vector<StoreTable>& tables);

private:
    void PrepareChange();
    void RecordNothing();

    PostgresSession& m_session;
};

} // namespace Orvane
