// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/ValueMatchers.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/Errors.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

class QWidget;

namespace Orvane::Testing {

/// Scenarios on a layer database in memory.
class HostKitTest : public testing::Test
{
protected:
    HostKitTest();

    SqliteLayerDatabase& Database() { return *m_database; }

    void AddLayer(qint32 layerID, const QString& name, const Value& code = Value::Null());
    static void
    AddLayer(SqliteLayerDatabase& database, qint32 layerID, const QString& name, const Value& code);
    void AddLayers(int count);
    void Set(qint32 layerID, const char* column, const Value& value);
    Value Get(qint32 layerID, const char* column);
    static Value Get(SqliteLayerDatabase& database, qint32 layerID, const char* column);
    /// The number of rows that the query returns.
    int Rows(const QString& query);
    /// The texts of the statements that the act runs.
    QStringList StatementsOf(const std::function<void()>& act);

private:
    std::unique_ptr<SqliteLayerDatabase> m_database;
};

/// Calls act, the user's operation, with the next modal window as soon as its event loop runs. The operation
/// must close the window; otherwise the test fails.
void WhenModal(const std::function<void(QWidget& window)>& act);

} // namespace Orvane::Testing
