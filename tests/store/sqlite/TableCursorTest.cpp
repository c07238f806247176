// SPDX-License-Identifier: MIT
#include "store/sqlite/StoreTest.h"

#include <QStringList>

namespace Orvane::Testing {

namespace {

/// Which statements the cursors of a file run.
class StatementsOfCursors : public StoreTest
{
protected:
    StatementsOfCursors()
    {
        for (const qint32 id : {3, 7, 12})
            AddLayer(*m_database, id, QStringLiteral("Layer %1").arg(id));
    }

    const std::unique_ptr<SqliteLayerDatabase> m_database = SqliteLayerDatabase::CreateInMemory();
};

} // namespace

TEST_F(StatementsOfCursors, UpdateWritesOnlyTheColumnsThatWereSet)
{
    QStringList texts;
    const auto layers = SeekLayer(*m_database, 7);
    layers->Edit();
    layers->SetField("Priority", 4);
    layers->SetField("Code", 2);
    m_database->SetQueryListener([&](const QString& sql) { texts << sql; });
    layers->Update();
    EXPECT_EQ(
        texts.join(u'\n'),
        QStringLiteral("UPDATE Layers SET \"Priority\" = ?1, \"Code\" = ?2 WHERE LayerID = ?3"));
}

TEST_F(StatementsOfCursors, ALoopThatOnlyWritesDoesNotReadTheRows)
{
    QStringList texts;
    const auto layers = m_database->OpenRecordset(QStringLiteral("Layers"));
    layers->Index("LayerIDIDX");
    for (const qint32 id : {3, 7, 12}) {
        m_database->SetQueryListener([&](const QString& sql) { texts << sql; });
        layers->Seek("=", id);
        m_database->SetQueryListener({});
        layers->Edit();
        layers->SetField("Code", ToInt32(layers->Field("LayerID")) * 2);
        layers->Update();
    }
    const auto probe = QStringLiteral("SELECT LayerID FROM Layers WHERE LayerID = ?1");
    EXPECT_EQ(texts.mid(1), (QStringList{probe, probe}));
    EXPECT_EQ(
        Column(*m_database, QStringLiteral("SELECT Code FROM Layers ORDER BY LayerID"), "Code"),
        (std::vector<qint32>{6, 14, 24}));
}

} // namespace Orvane::Testing
