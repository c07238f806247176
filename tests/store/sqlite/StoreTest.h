// SPDX-License-Identifier: MIT
#pragma once

#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/Errors.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;

namespace Orvane::Testing {

/// A second connection to a database file, made with SQLite alone: for locks it counts as another program.
class RawDatabase
{
public:
    explicit RawDatabase(const QString& path);
    ~RawDatabase();
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    /// Runs statements; the test fails when they fail.
    void Run(const char* sql);
    /// The first column of the first row.
    std::string Text(const char* sql);

private:
    sqlite3* m_handle = nullptr;
};

/// Scenarios on a layer database in a separate directory.
class StoreTest : public testing::Test
{
protected:
    /// A path in the test's directory.
    QString PathOf(const QString& name) const { return m_directory.filePath(name); }
    /// A new database file with layers 1 to layerCount, closed again.
    QString MadeFile(int layerCount = 3);
    QString MadeFile(const QString& name, int layerCount);
    /// A file with that content.
    QString FileWith(const QByteArray& content, const QString& name = QStringLiteral("file.ovl"));
    static QByteArray BytesOf(const QString& path);
    /// The names of all files in the test's directory.
    QStringList FilesThere() const;

    static void AddLayer(SqliteLayerDatabase& database, qint32 id, const QString& name);
    static void AddGroup(SqliteLayerDatabase& database, qint32 id, const QString& name, qint32 ordering);
    static void AddMember(SqliteLayerDatabase& database, qint32 group, qint32 layer, qint32 ordering);
    static std::unique_ptr<IRecordset> SeekLayer(SqliteLayerDatabase& database, qint32 id);
    static void SetCode(SqliteLayerDatabase& database, qint32 id, qint32 code);
    /// Sets a code, adds layer 9 to group 5 in an inner transaction, and deletes layer 2.
    static void ChangeInTransactions(SqliteLayerDatabase& database);
    static QString NameOfLayer(SqliteLayerDatabase& database, qint32 id);
    static std::vector<qint32> Column(SqliteLayerDatabase& database, const QString& sql, const char* name);

    /// Options under which a lock is not waited for.
    static StoreOptions Impatient() { return {std::chrono::milliseconds(0)}; }

private:
    QTemporaryDir m_directory;
};

} // namespace Orvane::Testing
