// SPDX-License-Identifier: MIT
#include "store/any/AnyStoreTest.h"

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);

class TableCursor : public AnyStoreTest
{
protected:
    TableCursor()
    {
        for (qint32 id : {3, 7, 12})
            AddLayer(*m_database, id, QStringLiteral("Layer %1").arg(id));
        AddGroup(*m_database, 4, QStringLiteral("Roads"), 1);
    }

    std::unique_ptr<IRecordset> Layers() { return m_database->OpenRecordset(QStringLiteral("Layers")); }

    std::unique_ptr<IRecordset> EditedLayer(qint32 id)
    {
        auto layers = SeekLayer(*m_database, id);
        layers->Edit();
        return layers;
    }

    const std::unique_ptr<ILayerStore> m_database = NamelessStore();
};

} // namespace

TEST_F(TableCursor, HasNoRowBeforeTheFirstSeek)
{
    const auto layers = Layers();
    EXPECT_TRUE(layers->AtEOF());
    EXPECT_FALSE(layers->NoMatch());
    EXPECT_EQ(ErrorOf([&] { layers->Field("Name"); }), Failure);
    EXPECT_EQ(ErrorOf([&] { layers->Edit(); }), Failure);
}

TEST_F(TableCursor, ASeekFindsTheRowOfTheKey)
{
    const auto layers = SeekLayer(*m_database, 7);
    EXPECT_FALSE(layers->NoMatch());
    EXPECT_FALSE(layers->AtEOF());
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer 7"));
}

TEST_F(TableCursor, ASeekWithoutMatchLeavesNoRow)
{
    const auto layers = SeekLayer(*m_database, 8);
    EXPECT_TRUE(layers->NoMatch());
    EXPECT_TRUE(layers->AtEOF());
    EXPECT_EQ(ErrorOf([&] { layers->Field("Name"); }), Failure);
}

TEST_F(TableCursor, ASeekAfterOneWithoutMatchFindsItsRow)
{
    const auto layers = SeekLayer(*m_database, 8);
    layers->Seek("=", 12);
    EXPECT_FALSE(layers->NoMatch());
    EXPECT_EQ(ToInt32(layers->Field("LayerID")), 12);
}

TEST_F(TableCursor, NamesAreComparedWithoutCase)
{
    const auto layers = m_database->OpenRecordset(QStringLiteral("LAYERS"));
    layers->Index("layeridIDX");
    layers->Seek("=", 3);
    EXPECT_EQ(ToText(layers->Field("NAME")), QStringLiteral("Layer 3"));
    EXPECT_EQ(ToText(layers->Field("name")), QStringLiteral("Layer 3"));
}

TEST_F(TableCursor, GroupsAreSoughtByTheirIndex)
{
    const auto groups = m_database->OpenRecordset(QStringLiteral("LayerGroups"));
    groups->Index("IDIDX");
    groups->Seek("=", 4);
    EXPECT_EQ(ToText(groups->Field("Name")), QStringLiteral("Roads"));
    groups->Seek("=", 5);
    EXPECT_TRUE(groups->NoMatch());
}

TEST_F(TableCursor, AnIndexOfAnotherTableIsRefused)
{
    const auto layers = Layers();
    EXPECT_EQ(ErrorOf([&] { layers->Index("IDIDX"); }), Failure);
}

TEST_F(TableCursor, ASeekWithoutAnIndexIsRefused)
{
    const auto layers = Layers();
    EXPECT_EQ(ErrorOf([&] { layers->Seek("=", 3); }), Failure);
}

TEST_F(TableCursor, AComparisonOtherThanEqualIsRefused)
{
    const auto layers = SeekLayer(*m_database, 3);
    EXPECT_EQ(ErrorOf([&] { layers->Seek(">=", 3); }), Failure);
}

TEST_F(TableCursor, MoveNextFollowsTheKeys)
{
    const auto layers = SeekLayer(*m_database, 3);
    layers->MoveNext();
    EXPECT_EQ(ToInt32(layers->Field("LayerID")), 7);
    layers->MoveNext();
    EXPECT_EQ(ToInt32(layers->Field("LayerID")), 12);
    layers->MoveNext();
    EXPECT_TRUE(layers->AtEOF());
    EXPECT_EQ(ErrorOf([&] { layers->MoveNext(); }), Failure);
}

TEST_F(TableCursor, AnUnknownTableIsRefusedByName)
{
    const QString text = DescriptionOf([&] { m_database->OpenRecordset(QStringLiteral("Nonsense")); });
    EXPECT_TRUE(text.contains(QStringLiteral("Nonsense"))) << qPrintable(text);
}

TEST_F(TableCursor, AnUnknownColumnIsRefusedByName)
{
    const auto layers = SeekLayer(*m_database, 3);
    const QString text = DescriptionOf([&] { layers->Field("Colour"); });
    EXPECT_TRUE(text.contains(QStringLiteral("Colour"))) << qPrintable(text);
}

TEST_F(TableCursor, UpdateStoresWhatWasSet)
{
    const auto layers = EditedLayer(7);
    layers->SetField("Name", QStringLiteral("Rivers"));
    layers->SetField("Visible", false);
    layers->Update();
    const auto again = SeekLayer(*m_database, 7);
    EXPECT_EQ(ToText(again->Field("Name")), QStringLiteral("Rivers"));
    EXPECT_EQ(ToInt32(again->Field("Visible")), 0);
    EXPECT_EQ(NameOfLayer(*m_database, 3), QStringLiteral("Layer 3"));
}

TEST_F(TableCursor, UpdateLeavesTheColumnsThatWereNotSet)
{
    const auto layers = EditedLayer(7);
    layers->SetField("Priority", 4);
    m_database->Execute(QStringLiteral("UPDATE Layers SET Name = 'Rivers', Code = 2 WHERE LayerID = 7"));
    layers->Update();
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Rivers"));
    EXPECT_EQ(ToInt32(layers->Field("Code")), 2);
    EXPECT_EQ(ToInt32(layers->Field("Priority")), 4);
}

TEST_F(TableCursor, UpdateWithNothingSetWritesNothing)
{
    int statements = 0;
    const auto layers = EditedLayer(7);
    m_database->SetQueryListener([&](const QString&) { ++statements; });
    layers->Update();
    EXPECT_EQ(statements, 0);
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer 7"));
}

TEST_F(TableCursor, NothingIsStoredBeforeUpdate)
{
    const auto layers = EditedLayer(7);
    layers->SetField("Name", QStringLiteral("Rivers"));
    EXPECT_EQ(NameOfLayer(*m_database, 7), QStringLiteral("Layer 7"));
}

TEST_F(TableCursor, WhileAnEditRunsASetColumnGivesWhatWasSet)
{
    const auto layers = EditedLayer(7);
    layers->SetField("Name", QStringLiteral("Lakes"));
    layers->SetField("NAME", QStringLiteral("Rivers"));
    EXPECT_EQ(ToText(layers->Field("name")), QStringLiteral("Rivers"));
    EXPECT_EQ(ToInt32(layers->Field("LayerID")), 7);
}

TEST_F(TableCursor, TheCursorStaysOnTheRowAfterUpdateAndReadsItAgain)
{
    const auto layers = EditedLayer(7);
    layers->SetField("MinVisScale", 12.5);
    layers->Update();
    EXPECT_EQ(ToDouble(layers->Field("MinVisScale")), 12.5);
    layers->Edit();
    layers->SetField("MinVisScale", 20);
    layers->Update();
    EXPECT_EQ(ToDouble(layers->Field("MinVisScale")), 20);
}

TEST_F(TableCursor, AnEditThatWasNotStoredIsDroppedBySeekMoveAndClose)
{
    auto layers = EditedLayer(3);
    layers->SetField("Name", QStringLiteral("Lost"));
    layers->Seek("=", 3);
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer 3"));
    EXPECT_EQ(ErrorOf([&] { layers->Update(); }), Failure);
    layers->Edit();
    layers->SetField("Name", QStringLiteral("Lost"));
    layers->MoveNext();
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer 7"));
    layers->Edit();
    layers->SetField("Name", QStringLiteral("Lost"));
    layers.reset();
    EXPECT_EQ(NameOfLayer(*m_database, 7), QStringLiteral("Layer 7"));
}

TEST_F(TableCursor, SettingOrStoringWithoutAnEditIsRefused)
{
    const auto layers = SeekLayer(*m_database, 3);
    EXPECT_EQ(ErrorOf([&] { layers->SetField("Name", 1); }), Failure);
    EXPECT_EQ(ErrorOf([&] { layers->Update(); }), Failure);
}

TEST_F(TableCursor, AnEmptyValueIsATypeMismatch)
{
    const auto layers = EditedLayer(3);
    EXPECT_EQ(ErrorOf([&] { layers->SetField("Name", Value()); }), int(ErrorNumber::TypeMismatch));
}

TEST_F(TableCursor, ARowThatWasDeletedMeanwhileIsReported)
{
    const auto layers = EditedLayer(3);
    layers->SetField("Code", 5);
    m_database->Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 3"));
    const QString text = DescriptionOf([&] { layers->Update(); });
    EXPECT_TRUE(text.contains(QStringLiteral("no longer"))) << qPrintable(text);
}

TEST_F(TableCursor, AChangedKeyIsFollowed)
{
    const auto layers = EditedLayer(3);
    layers->SetField("LayerID", 30);
    layers->Update();
    EXPECT_EQ(ToInt32(layers->Field("LayerID")), 30);
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer 3"));
}

TEST_F(TableCursor, AClosedCursorCanOnlyBeClosedAgain)
{
    const auto layers = SeekLayer(*m_database, 3);
    layers->Close();
    layers->Close();
    EXPECT_TRUE(layers->AtEOF());
    EXPECT_EQ(ErrorOf([&] { layers->Seek("=", 3); }), Failure);
    EXPECT_EQ(ErrorOf([&] { layers->Field("Name"); }), Failure);
}

TEST_F(TableCursor, TwoCursorsStandOnTheirOwnRows)
{
    const auto first = SeekLayer(*m_database, 3);
    const auto second = SeekLayer(*m_database, 7);
    EXPECT_EQ(ToInt32(first->Field("LayerID")), 3);
    EXPECT_EQ(ToInt32(second->Field("LayerID")), 7);
}

TEST_F(TableCursor, ARowThatWasOnlyProbedIsReadWhenAColumnIsAskedFor)
{
    const auto layers = EditedLayer(3);
    layers->SetField("Code", 1);
    layers->Update();
    layers->Seek("=", 7);
    EXPECT_EQ(ToInt32(layers->Field("LayerID")), 7);
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer 7"));
    layers->Seek("=", 8);
    EXPECT_TRUE(layers->NoMatch());
    layers->Seek("=", 12);
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer 12"));
}

TEST_F(TableCursor, AProbeThatFindsNothingLeavesNoRow)
{
    const auto layers = EditedLayer(3);
    layers->SetField("Code", 1);
    layers->Update();
    layers->Seek("=", 8);
    EXPECT_TRUE(layers->NoMatch());
    EXPECT_TRUE(layers->AtEOF());
    EXPECT_EQ(ErrorOf([&] { layers->Field("LayerID"); }), Failure);
}

TEST_F(TableCursor, ManyDifferentSetsOfColumnsAreStored)
{
    const std::vector<const char*> names = {"Code",         "Color",         "Style",        "FillStyle",
                                            "OutlineStyle", "LineThickness", "OverrideMode", "Priority"};
    const auto layers = SeekLayer(*m_database, 3);
    for (size_t set = 1; set < 256; ++set) {
        std::vector<const char*> columns;
        std::copy_if(names.begin(), names.end(), std::back_inserter(columns), [&](const auto& name) {
            return set & (size_t(1) << (&name - names.data()));
        });
        layers->Edit();
        for (const char* column : columns)
            layers->SetField(column, qint32(set));
        layers->Update();
        for (const char* column : columns)
            ASSERT_EQ(ToInt32(layers->Field(column)), qint32(set));
    }
}

TEST_F(TableCursor, AColumnThatTheHostAddsIsReadByCursorsOpenedBefore)
{
    const auto layers = SeekLayer(*m_database, 3);
    layers->Field("Name");
    m_database->Execute(QStringLiteral("ALTER TABLE Layers ADD COLUMN Remark TEXT DEFAULT 'none'"));
    layers->Seek("=", 7);
    EXPECT_EQ(ToText(layers->Field("Remark")), QStringLiteral("none"));
    EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer 7"));
}

} // namespace Orvane::Testing
