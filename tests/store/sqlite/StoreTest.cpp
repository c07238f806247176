// SPDX-License-Identifier: MIT
#include "store/sqlite/StoreTest.h"

#include <OrvaneShellLib/Transaction.h>

#include <QDir>
#include <QFile>

#include <sqlite3.h>

namespace Orvane::Testing {

RawDatabase::RawDatabase(const QString& path)
{
    EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &m_handle), SQLITE_OK);
}

RawDatabase::~RawDatabase()
{
    sqlite3_close(m_handle);
}

void RawDatabase::Run(const char* sql)
{
    EXPECT_EQ(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(m_handle);
}

std::string RawDatabase::Text(const char* sql)
{
    std::string text;
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(m_handle);
    if (sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_text(statement, 0))
        text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
    return text;
}

QString StoreTest::MadeFile(int layerCount)
{
    return MadeFile(QStringLiteral("map.ovl"), layerCount);
}

QString StoreTest::MadeFile(const QString& name, int layerCount)
{
    const auto database = SqliteLayerDatabase::Create(PathOf(name));
    database->BeginTrans();
    for (int id = 1; id <= layerCount; ++id)
        AddLayer(*database, id, QStringLiteral("Layer %1").arg(id));
    database->CommitTrans();
    return PathOf(name);
}

QString StoreTest::FileWith(const QByteArray& content, const QString& name)
{
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
}

QByteArray StoreTest::BytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

QStringList StoreTest::FilesThere() const
{
    return QDir(m_directory.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

void StoreTest::AddLayer(SqliteLayerDatabase& database, qint32 id, const QString& name)
{
    database.Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (?1, ?2)"), {id, name});
}

void StoreTest::AddGroup(SqliteLayerDatabase& database, qint32 id, const QString& name, qint32 ordering)
{
    database.Execute(
        QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering) VALUES (?1, ?2, ?3)"),
        {id, name, ordering});
}

void StoreTest::AddMember(SqliteLayerDatabase& database, qint32 group, qint32 layer, qint32 ordering)
{
    database.Execute(
        QStringLiteral("INSERT INTO LayerGroupMembers VALUES (?1, ?2, ?3)"), {group, layer, ordering});
}

std::unique_ptr<IRecordset> StoreTest::SeekLayer(SqliteLayerDatabase& database, qint32 id)
{
    auto layers = database.OpenRecordset(QStringLiteral("Layers"));
    layers->Index("LayerIDIDX");
    layers->Seek("=", id);
    return layers;
}

void StoreTest::SetCode(SqliteLayerDatabase& database, qint32 id, qint32 code)
{
    const auto layer = SeekLayer(database, id);
    layer->Edit();
    layer->SetField("Code", code);
    layer->Update();
}

void StoreTest::ChangeInTransactions(SqliteLayerDatabase& database)
{
    Transaction transaction(database);
    SetCode(database, 1, 5);
    AddLayer(database, 9, QStringLiteral("New"));
    {
        Transaction inner(database);
        AddMember(database, 5, 9, 2);
        inner.Commit();
    }
    database.Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 2"));
    transaction.Commit();
}

QString StoreTest::NameOfLayer(SqliteLayerDatabase& database, qint32 id)
{
    return ToText(SeekLayer(database, id)->Field("Name"));
}

std::vector<qint32> StoreTest::Column(SqliteLayerDatabase& database, const QString& sql, const char* name)
{
    std::vector<qint32> numbers;
    for (auto rows = database.OpenRecordset(sql); !rows->AtEOF(); rows->MoveNext())
        numbers.push_back(ToInt32(rows->Field(name)));
    return numbers;
}

} // namespace Orvane::Testing
