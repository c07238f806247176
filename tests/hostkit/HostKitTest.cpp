// SPDX-License-Identifier: MIT
#include "hostkit/HostKitTest.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace Orvane::Testing {

void HostKitTest::AddLayer(qint32 layerID, const QString& name, const Value& code)
{
    AddLayer(*m_database, layerID, name, code);
}

void HostKitTest::AddLayer(ILayerStore& database, qint32 layerID, const QString& name, const Value& code)
{
    database.Execute(
        QStringLiteral("INSERT INTO Layers (LayerID, Name, Code) VALUES (?1, ?2, ?3)"),
        {layerID, name, code});
}

void HostKitTest::AddLayers(int count)
{
    m_database->BeginTrans();
    for (int layerID = 1; layerID <= count; ++layerID)
        AddLayer(layerID, QStringLiteral("Layer %1").arg(layerID), layerID);
    m_database->CommitTrans();
}

void HostKitTest::Set(qint32 layerID, const char* column, const Value& value)
{
    m_database->Execute(
        QStringLiteral("UPDATE Layers SET %1 = ?2 WHERE LayerID = ?1").arg(QLatin1String(column)),
        {layerID, value});
}

Value HostKitTest::Get(qint32 layerID, const char* column)
{
    return Get(*m_database, layerID, column);
}

Value HostKitTest::Get(ILayerStore& database, qint32 layerID, const char* column)
{
    const auto layer
        = database.OpenQuery(QStringLiteral("SELECT * FROM Layers WHERE LayerID = ?1"), {layerID});
    return layer->AtEOF() ? Value() : layer->Field(column);
}

int HostKitTest::Rows(const QString& query)
{
    int count = 0;
    const auto rows = m_database->OpenRecordset(query);
    for (; !rows->AtEOF(); rows->MoveNext())
        ++count;
    return count;
}

QStringList HostKitTest::StatementsOf(const std::function<void()>& act)
{
    QStringList statements;
    m_database->SetQueryListener([&statements](const QString& sql) { statements << sql; });
    act();
    m_database->SetQueryListener({});
    return statements;
}

void WhenModal(const std::function<void(QWidget& window)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        const QPointer<QWidget> window = QApplication::activeModalWidget();
        ASSERT_TRUE(window) << "no modal window is shown";
        act(*window);
        if (!window || !window->isVisible())
            return;
        ADD_FAILURE() << "the window stayed open";
        window->close();
    });
}

} // namespace Orvane::Testing
