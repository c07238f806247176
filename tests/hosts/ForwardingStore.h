// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangeRecorder.h"
#include "store/Changeset.h"
#include "store/ILayerStore.h"

#include <utility>

namespace Orvane::Testing {

/// A store that passes each call on to another one; tests override what is to be different.
class ForwardingStore : public ILayerStore
{
public:
    /// store: not owned; outlives this object.
    explicit ForwardingStore(ILayerStore& store) : m_store(store) { }

    qint64 Execute(const QString& sql, const std::vector<Value>& values = {}) override
    {
        return m_store.Execute(sql, values);
    }
    void Send(const QString& sql, const std::vector<Value>& values = {}) override
    {
        m_store.Send(sql, values);
    }
    std::unique_ptr<IRecordset> OpenQuery(const QString& sql, const std::vector<Value>& values = {}) override
    {
        return m_store.OpenQuery(sql, values);
    }
    void PrepareTable(const StoreTable& table) override { m_store.PrepareTable(table); }
    bool HasTable(const QString& table) override { return m_store.HasTable(table); }
    bool HasColumn(const QString& table, const QString& column) override
    {
        return m_store.HasColumn(table, column);
    }
    std::vector<StoreTable> Tables() override { return m_store.Tables(); }
    std::unique_ptr<ChangeRecorder> RecordChanges() override { return m_store.RecordChanges(); }
    std::optional<Changeset> Apply(const Changeset& changes) override { return m_store.Apply(changes); }
    qint64 ForeignChanges() override { return m_store.ForeignChanges(); }
    void SetWatcher(StoreWatcher watcher) override { m_store.SetWatcher(std::move(watcher)); }
    void AskWatcher(double done = UnknownShare) override { m_store.AskWatcher(done); }
    bool IsReadOnly() const override { return m_store.IsReadOnly(); }
    QString Path() const override { return m_store.Path(); }
    void CopyToFile(
        const QString& path, IfExists ifExists = IfExists::Refuse, const StoreFiller& change = {}) override
    {
        m_store.CopyToFile(path, ifExists, change);
    }
    void SetQueryListener(std::function<void(const QString&)> listener) override
    {
        m_store.SetQueryListener(std::move(listener));
    }

protected:
    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override
    {
        return m_store.OpenRecordset(source);
    }
    void ILayerDatabase_BeginTrans() override { m_store.BeginTrans(); }
    void ILayerDatabase_CommitTrans() override { m_store.CommitTrans(); }
    void ILayerDatabase_Rollback() override { m_store.Rollback(); }

private:
    ILayerStore& m_store;
};

} // namespace Orvane::Testing
