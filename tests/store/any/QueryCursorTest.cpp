// SPDX-License-Identifier: MIT
#include "store/any/AnyStoreTest.h"

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);

class QueryCursorTest : public AnyStoreTest
{
protected:
    QueryCursorTest()
    {
        for (const qint32 id : {1, 2, 3})
            AddLayer(*m_database, id, QStringLiteral("Layer %1").arg(id));
    }

    std::unique_ptr<IRecordset> Layers() { return m_database->OpenRecordset(m_sql); }

    const QString m_sql = QStringLiteral("SELECT * FROM Layers ORDER BY LayerID");
    const std::unique_ptr<ILayerStore> m_database = NamelessStore();
};

} // namespace

TEST_F(QueryCursorTest, StandsOnTheFirstRowWhenItIsOpened)
{
    const auto layers = Layers();
    EXPECT_FALSE(layers->AtEOF());
    EXPECT_EQ(ToInt32(layers->Field("LayerID")), 1);
}

TEST_F(QueryCursorTest, GoesThroughAllRowsOnce)
{
    EXPECT_EQ(Column(*m_database, m_sql, "LayerID"), (std::vector<qint32>{1, 2, 3}));
}

TEST_F(QueryCursorTest, AQueryWithoutRowsIsAtItsEnd)
{
    const auto layers = m_database->OpenRecordset(QStringLiteral("SELECT * FROM Layers WHERE LayerID > 9"));
    EXPECT_TRUE(layers->AtEOF());
    EXPECT_EQ(ErrorOf([&] { layers->Field("LayerID"); }), Failure);
    EXPECT_EQ(ErrorOf([&] { layers->MoveNext(); }), Failure);
}

TEST_F(QueryCursorTest, MovingPastTheEndIsRefused)
{
    const auto layers = Layers();
    for (int i = 0; i < 3; ++i)
        layers->MoveNext();
    EXPECT_TRUE(layers->AtEOF());
    EXPECT_EQ(ErrorOf([&] { layers->MoveNext(); }), Failure);
}

TEST_F(QueryCursorTest, ItsRowsCannotBeEditedOrSought)
{
    const auto layers = Layers();
    EXPECT_EQ(ErrorOf([&] { layers->Edit(); }), Failure);
    EXPECT_EQ(ErrorOf([&] { layers->SetField("Name", 1); }), Failure);
    EXPECT_EQ(ErrorOf([&] { layers->Update(); }), Failure);
    EXPECT_EQ(ErrorOf([&] { layers->Index("LayerIDIDX"); }), Failure);
    EXPECT_EQ(ErrorOf([&] { layers->Seek("=", 1); }), Failure);
    EXPECT_FALSE(layers->NoMatch());
}

TEST_F(QueryCursorTest, AnUnknownColumnIsRefusedByName)
{
    const auto layers = Layers();
    const QString text = DescriptionOf([&] { layers->Field("Colour"); });
    EXPECT_TRUE(text.contains(QStringLiteral("Colour"))) << qPrintable(text);
}

TEST_F(QueryCursorTest, TheSameTextCanBeOpenTwiceAtOnce)
{
    const auto outer = Layers();
    const auto inner = Layers();
    inner->MoveNext();
    EXPECT_EQ(ToInt32(outer->Field("LayerID")), 1);
    EXPECT_EQ(ToInt32(inner->Field("LayerID")), 2);
}

TEST_F(QueryCursorTest, ASecondOpeningSeesWhatChangedMeanwhile)
{
    EXPECT_EQ(ToText(Layers()->Field("Name")), QStringLiteral("Layer 1"));
    m_database->Execute(QStringLiteral("UPDATE Layers SET Name = 'Rivers' WHERE LayerID = 1"));
    EXPECT_EQ(ToText(Layers()->Field("Name")), QStringLiteral("Rivers"));
}

TEST_F(QueryCursorTest, BlanksAndCaseOfTheTextDoNotMatter)
{
    EXPECT_EQ(Column(*m_database, QStringLiteral("\n  select LayerID from layers "), "LayerID").size(), 3u);
}

TEST_F(QueryCursorTest, ATextThatWritesIsRefusedAsAQuery)
{
    EXPECT_EQ(ErrorOf([&] { m_database->OpenQuery(QStringLiteral("DELETE FROM Layers")); }), Failure);
    EXPECT_EQ(Column(*m_database, m_sql, "LayerID").size(), 3u);
}

TEST_F(QueryCursorTest, TwoStatementsInOneTextAreRefused)
{
    EXPECT_EQ(
        ErrorOf([&] { m_database->OpenRecordset(QStringLiteral("SELECT 1; DELETE FROM Layers")); }), Failure);
    EXPECT_EQ(Column(*m_database, m_sql, "LayerID").size(), 3u);
}

TEST_F(QueryCursorTest, ATextThatIsNoSqlSaysWhatIsWrong)
{
    const QString text
        = DescriptionOf([&] { m_database->OpenRecordset(QStringLiteral("SELECT FROM WHERE")); });
    EXPECT_TRUE(text.contains(QStringLiteral("syntax error"))) << qPrintable(text);
}

TEST_F(QueryCursorTest, ANameInDoubleQuotesIsNeverTakenForAText)
{
    EXPECT_EQ(
        ErrorOf([&] { m_database->OpenRecordset(QStringLiteral("SELECT \"Nonsense\" FROM Layers")); }),
        Failure);
}

TEST_F(QueryCursorTest, ParametersAreBoundInTheirOrder)
{
    const auto rows = m_database->OpenQuery(
        QStringLiteral("SELECT Name FROM Layers WHERE LayerID > ?1 AND Name <> ?2"),
        {1, QStringLiteral("Layer 2")});
    EXPECT_EQ(ToText(rows->Field("Name")), QStringLiteral("Layer 3"));
    EXPECT_EQ(ErrorOf([&] { m_database->OpenQuery(QStringLiteral("SELECT ?1"), {}); }), Failure);
}

TEST_F(QueryCursorTest, ALoopMayChangeTheRowsItGoesThrough)
{
    std::vector<qint32> seen;
    for (auto layers = Layers(); !layers->AtEOF(); layers->MoveNext()) {
        seen.push_back(ToInt32(layers->Field("LayerID")));
        const auto layer = SeekLayer(*m_database, seen.back());
        layer->Edit();
        layer->SetField("Code", seen.back() * 10);
        layer->Update();
    }
    EXPECT_EQ(seen, (std::vector<qint32>{1, 2, 3}));
    EXPECT_EQ(Column(*m_database, m_sql, "Code"), (std::vector<qint32>{10, 20, 30}));
}

TEST_F(QueryCursorTest, AClosedCursorCanOnlyBeClosedAgain)
{
    const auto layers = Layers();
    layers->Close();
    layers->Close();
    EXPECT_TRUE(layers->AtEOF());
    EXPECT_EQ(ErrorOf([&] { layers->Field("Name"); }), Failure);
}

} // namespace Orvane::Testing
