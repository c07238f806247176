// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/MapTest.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "support/CuttingProxy.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QString>
#include <QUrl>

#include <memory>
#include <vector>

namespace Orvane::Testing {

/// A map with two layers, which is reached through a network that the test can cut.
class ProxiedMapTest : public MapTest
{
protected:
    static constexpr auto Lost = int(ErrorNumber::ConnectionLost);
    static constexpr auto NotAMap = int(ErrorNumber::NotALayerDatabase);

    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run("INSERT INTO Layers (LayerID, Name) VALUES (1, 'Roads'), (2, 'Rivers')");
        m_proxy = std::make_unique<CuttingProxy>(SharedServer().Socket());
    }

    QString Place(const char* role = "orvane") const
    {
        return QStringLiteral("postgresql://%1@/postgres?host=%2&schema=%3")
            .arg(
                QLatin1String(role), m_proxy->Folder(), QString::fromUtf8(QUrl::toPercentEncoding(m_schema)));
    }
    std::unique_ptr<PostgresLayerDatabase> Opened(OpenMode mode = OpenMode::ReadWrite) const
    {
        return PostgresLayerDatabase::Open(Place(), mode);
    }

    static void Execute(ILayerStore& store, const char* sql, const std::vector<Value>& values = {})
    {
        store.Execute(QString::fromUtf8(sql), values);
    }

    static qint32 CodeOf(ILayerStore& store, qint32 layer)
    {
        const auto rows
            = store.OpenQuery(QStringLiteral("SELECT Code FROM Layers WHERE LayerID = ?1"), {layer});
        return ToInt32(rows->Field("Code"));
    }

    static std::unique_ptr<IRecordset> Sought(ILayerStore& store, qint32 layer)
    {
        auto layers = store.OpenRecordset(QStringLiteral("Layers"));
        layers->Index("LayerIDIDX");
        layers->Seek("=", layer);
        return layers;
    }

    static void SetCode(ILayerStore& store, qint32 layer, const Value& code)
    {
        const auto layers = Sought(store, layer);
        layers->Edit();
        layers->SetField("Code", code);
        layers->Update();
    }

    std::unique_ptr<CuttingProxy> m_proxy;
};

} // namespace Orvane::Testing
