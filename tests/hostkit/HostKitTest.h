// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/ValueMatchers.h"
#include "store/ILayerStore.h"
#include "store/any/StoreDifferences.h"
#include "store/any/StoreMaker.h"
#include "support/Errors.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

class QWidget;

namespace Orvane::Testing {

/// Scenarios on a layer database. Each program that contains them has another kind of store.
class HostKitTest : public testing::Test
{
protected:
    void SetUp() override { SkipDifferences(); }

    ILayerStore& Database() { return *m_database; }
    /// Makes other maps.
    StoreMaker& Maker() { return m_maker; }
    /// The place of one other map.
    QString OtherMap() const { return m_maker.PlaceOf(QStringLiteral("map.ovl")); }

    void AddLayer(qint32 layerID, const QString& name, const Value& code = Value::Null());
    static void AddLayer(ILayerStore& database, qint32 layerID, const QString& name, const Value& code);
    void AddLayers(int count);
    void Set(qint32 layerID, const char* column, const Value& value);
    Value Get(qint32 layerID, const char* column);
    static Value Get(ILayerStore& database, qint32 layerID, const char* column);
    /// The number of rows that the query returns.
    int Rows(const QString& query);
    /// The texts of the statements that the act runs.
    QStringList StatementsOf(const std::function<void()>& act);

private:
    StoreMaker m_maker;
    std::unique_ptr<ILayerStore> m_database = m_maker.CreateNameless();
};

/// Calls act, the user's operation, with the next modal window as soon as its event loop runs. The operation
/// must close the window; otherwise the test fails.
void WhenModal(const std::function<void(QWidget& window)>& act);

} // namespace Orvane::Testing
