// SPDX-License-Identifier: MIT
#pragma once

#include "memory/MemorySweep.h"
#include "store/sqlite/StoreTest.h"

#include <QFile>

#include <gmock/gmock.h>

namespace Orvane::Testing {

using Act = std::function<void()>;

/// Commands of the store on a map in a file.
class StoreWithoutMemory : public StoreTest, public testing::WithParamInterface<MissingMemory>
{
protected:
    using Command = std::function<Act(SqliteLayerDatabase&)>;

    StoreWithoutMemory()
    {
        m_fault = MakeFault(GetParam()); // before SQLite is used
        m_original = MadeFile(QStringLiteral("original.ovl"), 3);
        const auto database = SqliteLayerDatabase::Open(m_original);
        AddGroup(*database, 5, QStringLiteral("Group"), 0);
        AddMember(*database, 5, 1, 0);
        AddMember(*database, 5, 2, 1);
    }

    /// Sweeps over a command on an open map, which stays open for the next edit.
    void Sweep(const Command& command)
    {
        SweepPlain([&] {
            m_database = SqliteLayerDatabase::Open(m_run);
            return command(*m_database);
        });
    }

    /// Sweeps over a command without an open map; what it leaves in m_database is closed.
    void SweepPlain(const std::function<Act()>& prepare)
    {
        SweepMemory(
            *m_fault,
            {.prepare =
                 [&] {
                     MakeFresh();
                     return prepare();
                 },
             .goOn = [this] { EditOnceMore(); },
             .state = [this] { return State(); },
             .stride = m_stride});
    }

    const QString m_run = PathOf(QStringLiteral("run.ovl"));
    const QString m_copy = PathOf(QStringLiteral("copy.ovl"));
    std::unique_ptr<SqliteLayerDatabase> m_database;
    std::unique_ptr<SqliteLayerDatabase> m_other;
    std::string m_read; // what a command has read, once it has read all
    int m_stride = 1;
    Act m_afterwards; // runs on the open map when nothing fails any more

private:
    void MakeFresh()
    {
        m_read.clear();
        for (const QString& name : FilesThere()) {
            if (name != QLatin1String("original.ovl"))
                QFile::remove(PathOf(name));
        }
        EXPECT_TRUE(QFile::copy(m_original, m_run));
    }

    void EditOnceMore()
    {
        if (m_afterwards)
            m_afterwards();
        if (!m_database)
            m_database = SqliteLayerDatabase::Open(m_run);
        m_database->Execute(QStringLiteral("UPDATE Layers SET Priority = 77 WHERE LayerID = 3"));
        m_database.reset();
        EXPECT_EQ(RawDatabase(m_run).Text("SELECT Priority FROM Layers WHERE LayerID = 3"), "77");
    }

    // The copy's files count too: whatever else is there was left behind.
    std::string State()
    {
        std::string state
            = Everything(m_run) + " read: " + m_read + " files: " + FilesThere().join(u' ').toStdString();
        return QFile::exists(m_copy) ? state + " copy: " + Everything(m_copy) : state;
    }

    static std::string Everything(const QString& path)
    {
        RawDatabase file(path);
        return file.Text("SELECT group_concat(LayerID || Name || Code) FROM Layers") + '/'
            + file.Text("SELECT group_concat(ID || Name) FROM LayerGroups") + '/'
            + file.Text("SELECT group_concat(GroupID || '-' || LayerID) FROM LayerGroupMembers") + '/'
            + file.Text("SELECT group_concat(name) FROM sqlite_schema") + '/'
            + file.Text("PRAGMA integrity_check");
    }

    std::unique_ptr<IFault> m_fault;
    QString m_original;
};

} // namespace Orvane::Testing
