// SPDX-License-Identifier: MIT
#pragma once

#include "store/ILayerStore.h"
#include "store/StoreTable.h"
#include "store/opening/LayerStores.h"
#include "store/postgres/RawLink.h"
#include "store/postgres/link/QuotedName.h"
#include "store/postgres/maps/MapSchema.h"
#include "support/Errors.h"
#include "support/PrivateServer.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace Orvane::Testing {

/// Runs a statement.
inline void Execute(ILayerStore& store, const char* sql, const std::vector<Value>& values = {})
{
    store.Execute(QString::fromUtf8(sql), values);
}

/// Adds the layers 1 to count.
inline void AddLayers(ILayerStore& store, int count)
{
    Transaction transaction(store);
    for (qint32 id = 1; id <= count; ++id)
        store.Send(
            QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (?1, ?2)"),
            {id, QStringLiteral("Layer %1").arg(id)});
    transaction.Commit();
}

/// A value as text; flags as numbers.
inline QString TextOf(const Value& value)
{
    if (value.IsNull())
        return QStringLiteral("NULL");
    if (value.IsText())
        return u'"' + *value.Get<QString>() + u'"';
    return QString::number(ToDouble(value), 'g', 17);
}

/// All rows of a table, with the names of the columns.
inline QStringList RowsOf(ILayerStore& store, const StoreTable& table)
{
    QStringList rows;
    const auto cursor = store.OpenQuery(QStringLiteral("SELECT * FROM ") + table.name);
    for (; !cursor->AtEOF(); cursor->MoveNext()) {
        QStringList values{table.name};
        for (const StoreColumn& column : table.columns)
            values << column.name + u'=' + TextOf(cursor->Field(column.name.toStdString()));
        rows << values.join(u'|');
    }
    return rows;
}

/// All rows of all tables.
inline QStringList Everything(ILayerStore& store)
{
    QStringList rows;
    for (const StoreTable& table : store.Tables())
        rows << RowsOf(store, table);
    rows.sort();
    return rows;
}

/// The column N of the first row.
inline qint32 NumberIn(ILayerStore& store, const char* sql)
{
    return ToInt32(store.OpenQuery(QString::fromUtf8(sql))->Field("N"));
}

/// A file and a map on the server of this program.
class CopyTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        m_place = SharedServer().Place(m_schema);
        m_server = LayerStores::Create(m_place);
        m_file = LayerStores::Create(Path("file.orvane"));
    }
    void TearDown() override
    {
        m_server.reset();
        if (!m_place.isEmpty())
            RawLink(SharedServer().Connection())
                .Run("DROP SCHEMA IF EXISTS " + QuotedName(m_schema) + " CASCADE");
    }

    QString Path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    /// Another program that has the map open.
    std::unique_ptr<RawLink> Other() const
    {
        auto link = std::make_unique<RawLink>(SharedServer().Connection());
        link->Run("SET search_path = " + MapSchema::SearchPath(m_schema));
        return link;
    }

    const QString m_schema = QStringLiteral("Copied map");
    QTemporaryDir m_folder;
    QString m_place;
    std::unique_ptr<ILayerStore> m_server;
    std::unique_ptr<ILayerStore> m_file;
};

} // namespace Orvane::Testing
