// SPDX-License-Identifier: MIT
#include "hostkit/LayerFactory.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/LayerDeletion.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/schemes/LayerSchemes.h"

#include <utility>

namespace Orvane::Testing {
namespace {

class Factory : public HostKitTest
{
protected:
    LayerNames m_names{Database()};
    LayerFactory m_factory{Database(), m_names};
};

TEST_F(Factory, ANewLayerIsVisibleEditableAndDrawnAtEveryScale)
{
    const qint32 layerID = m_factory.Create();
    for (const char* column : {"Visible", "Selectable", "Hitable", "Enquirable"})
        EXPECT_THAT(Get(layerID, column), IsFlag(true)) << column;
    for (const char* column : {"locked", "SnapRequired", "SystemLayer", "Pseudo", "Style", "OverrideMode"})
        EXPECT_THAT(Get(layerID, column), IsFlag(false)) << column;
    EXPECT_THAT(Get(layerID, "Priority"), IsNumber(128));
    EXPECT_THAT(Get(layerID, "FillStyle"), IsNumber(15));
    EXPECT_THAT(Get(layerID, "FillBackColor"), IsNumber(qint32(0xFF000000)));
    EXPECT_THAT(Get(layerID, "MinVisScale"), IsNumber(0));
    EXPECT_THAT(Get(layerID, "MaxVisScale"), IsNumber(0));
}

TEST_F(Factory, ANewLayersIDIsAboveAllOthers)
{
    AddLayer(41, QStringLiteral("Roads"));
    EXPECT_EQ(m_factory.Create(), 42);
}

TEST_F(Factory, ALayerThatSomebodyAddsAtTheSameMomentKeepsItsNumberAndItsCode)
{
    const auto ours = Maker().Create(OtherMap());
    const auto theirs = Maker().Open(OtherMap());
    bool isAdded = false;
    ours->SetQueryListener([&](const QString& sql) {
        if (sql.contains(QLatin1String("Code")) && !std::exchange(isAdded, true))
            AddLayer(*theirs, 1, QStringLiteral("Theirs"), 0);
    });
    LayerNames names(*ours);
    EXPECT_EQ(LayerFactory(*ours, names).Create(), 2);
    EXPECT_THAT(Get(*ours, 2, "Code"), IsNumber(1));
    EXPECT_THAT(Get(*ours, 1, "Name"), IsValue(QStringLiteral("Theirs")));
}

TEST_F(Factory, TheFirstLayerOfAMapHasIDOneAndCodeZero)
{
    const qint32 layerID = m_factory.Create();
    EXPECT_EQ(layerID, 1);
    EXPECT_THAT(Get(layerID, "Code"), IsNumber(0));
}

TEST_F(Factory, NewLayersHaveNamesOfTheirOwn)
{
    EXPECT_EQ(m_names.Name(m_factory.Create()), QStringLiteral("New layer"));
    EXPECT_EQ(m_names.Name(m_factory.Create()), QStringLiteral("New layer 2"));
    EXPECT_EQ(m_names.Name(m_factory.Create()), QStringLiteral("New layer 3"));
}

TEST_F(Factory, NewLayersAreCountedOnHoweverManyThereAre)
{
    AddLayer(1, QStringLiteral("New layer"), 0);
    for (qint32 number = 2; number <= 60; ++number)
        AddLayer(number, QStringLiteral("New layer %1").arg(number), number);
    EXPECT_THAT(Get(m_factory.Create(), "Name"), IsValue(QStringLiteral("New layer 61")));
    Database().Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 37"));
    EXPECT_THAT(Get(m_factory.Create(), "Name"), IsValue(QStringLiteral("New layer 37")));
}

TEST_F(Factory, ANameInAnotherSpellingIsNotTaken)
{
    AddLayer(1, QStringLiteral("NEW LAYER"), 0);
    EXPECT_THAT(Get(m_factory.Create(), "Name"), IsValue(QStringLiteral("New layer")));
}

TEST_F(Factory, ForANewLayerTheNamesOfOthersAreNotRead)
{
    AddLayer(1, QStringLiteral("Roads"), 0);
    const QStringList statements = StatementsOf([&] { m_factory.Create(); });
    for (const QString& statement : statements)
        EXPECT_FALSE(statement.contains(QLatin1String("LayerID, Name FROM Layers")))
            << statement.toStdString();
    EXPECT_FALSE(statements.isEmpty());
}

TEST_F(Factory, ANameThatBecameFreeIsUsedAgain)
{
    const qint32 first = m_factory.Create();
    m_factory.Create();
    m_factory.Delete(first);
    EXPECT_THAT(Get(m_factory.Create(), "Name"), IsValue(QStringLiteral("New layer")));
}

TEST_F(Factory, ANewLayerTakesTheLowestFreeCode)
{
    AddLayer(1, QStringLiteral("a"), 0);
    AddLayer(2, QStringLiteral("b"), 1);
    AddLayer(3, QStringLiteral("c"), 3);
    AddLayer(4, QStringLiteral("d"), -1);
    AddLayer(5, QStringLiteral("e"), 1);
    EXPECT_THAT(Get(m_factory.Create(), "Code"), IsNumber(2));
    EXPECT_THAT(Get(m_factory.Create(), "Code"), IsNumber(4));
}

TEST_F(Factory, AFractionalCodeTakesNoWholeOne)
{
    AddLayer(1, QStringLiteral("a"), 0.5);
    AddLayer(2, QStringLiteral("b"), 1);
    EXPECT_THAT(Get(m_factory.Create(), "Code"), IsNumber(0));
    EXPECT_THAT(Get(m_factory.Create(), "Code"), IsNumber(2));
}

TEST_F(Factory, WithAllCodesTakenANewLayerHasNone)
{
    Database().Execute(
        QStringLiteral("INSERT INTO Layers (LayerID, Name, Code) WITH RECURSIVE Codes (Code) AS"
                       " (SELECT 0 UNION ALL SELECT Code + 1 FROM Codes WHERE Code < 32767)"
                       " SELECT Code + 1, 'Layer', Code FROM Codes"));
    EXPECT_THAT(Get(m_factory.Create(), "Code"), IsNumber(-1));
}

TEST_F(Factory, DeletingALayerTakesItsRowsEverywhere)
{
    AddLayers(2);
    Database().Execute(QStringLiteral("INSERT INTO LayerGroups (ID, Name) VALUES (5, 'Group')"));
    Database().Execute(
        QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (5, 1), (5, 2)"));
    LayerSchemes(Database()).Names();
    m_factory.Delete(1);
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 1);
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM LayerGroupMembers")), 1);
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM LayerSchemeValues")), 1);
}

TEST_F(Factory, TellsWhatGoesWithALayer)
{
    AddLayers(2);
    Database().Execute(QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering)"
                                      " VALUES (5, 'Second', 2), (6, 'First', 1), (7, 'Other', 0)"));
    Database().Execute(
        QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (5, 1), (6, 1), (7, 2)"));
    LayerSchemes(Database()).Create(QStringLiteral("Night"));
    const LayerDeletion deletion = m_factory.WhatGoes(1);
    EXPECT_EQ(deletion.layer, QStringLiteral("Layer 1"));
    EXPECT_THAT(deletion.groups, testing::ElementsAre(QStringLiteral("First"), QStringLiteral("Second")));
    EXPECT_THAT(deletion.schemes, testing::ElementsAre(QStringLiteral("Standard"), QStringLiteral("Night")));
}

TEST_F(Factory, TellsWhatGoesWithSeveralLayersEachGroupOnce)
{
    AddLayers(3);
    Database().Execute(QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering)"
                                      " VALUES (5, 'Second', 2), (6, 'First', 1), (7, 'Other', 0)"));
    Database().Execute(QStringLiteral(
        "INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (5, 1), (5, 3), (6, 1), (7, 2)"));
    LayerSchemes(Database()).Create(QStringLiteral("Night"));
    const LayerDeletion deletion = m_factory.WhatGoes(std::vector<qint32>{1, 3});
    EXPECT_EQ(deletion.layers, 2);
    EXPECT_EQ(deletion.layer, QStringLiteral("2 layers"));
    EXPECT_THAT(deletion.groups, testing::ElementsAre(QStringLiteral("First"), QStringLiteral("Second")));
    EXPECT_THAT(deletion.schemes, testing::ElementsAre(QStringLiteral("Standard"), QStringLiteral("Night")));
}

TEST_F(Factory, DeletingSeveralIsOneTransaction)
{
    AddLayers(2);
    StoreMaker::Refuse(Database(), RowAct::Delete, QStringLiteral("Layers"), 2);
    const std::vector<qint32> both{1, 2};
    EXPECT_EQ(ErrorOf([&] { m_factory.Delete(both); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 2);
    EXPECT_EQ(m_names.Name(1), QStringLiteral("Layer 1"));
}

TEST_F(Factory, WithoutGroupsAndSchemesOnlyTheLayerGoes)
{
    AddLayers(1);
    const LayerDeletion deletion = m_factory.WhatGoes(1);
    EXPECT_TRUE(deletion.groups.isEmpty());
    EXPECT_TRUE(deletion.schemes.isEmpty());
}

TEST_F(Factory, DeletingIsOneTransaction)
{
    AddLayers(1);
    Database().Execute(QStringLiteral("INSERT INTO LayerGroups (ID, Name) VALUES (5, 'Group')"));
    Database().Execute(QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (5, 1)"));
    StoreMaker::Refuse(Database(), RowAct::Delete, QStringLiteral("Layers"), 1);
    EXPECT_EQ(ErrorOf([&] { m_factory.Delete(1); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM LayerGroupMembers")), 1);
    EXPECT_EQ(m_names.Name(1), QStringLiteral("Layer 1"));
}

TEST_F(Factory, DeletingAMissingLayerChangesNothing)
{
    AddLayers(2);
    m_factory.Delete(99);
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 2);
}

TEST_F(Factory, ASystemLayerOrAMissingOneCannotBeDeleted)
{
    AddLayers(3);
    Set(2, "SystemLayer", true);
    Set(3, "SystemLayer", Value::Null());
    EXPECT_TRUE(m_factory.CanDelete(1));
    EXPECT_FALSE(m_factory.CanDelete(2));
    EXPECT_TRUE(m_factory.CanDelete(3));
    EXPECT_FALSE(m_factory.CanDelete(99));
}

TEST_F(Factory, ACodeIsAssignedWhenALayerHasIt)
{
    AddLayer(1, QStringLiteral("a"), 7);
    EXPECT_TRUE(m_factory.IsCodeAssigned(7));
    EXPECT_FALSE(m_factory.IsCodeAssigned(8));
    EXPECT_FALSE(m_factory.IsCodeAssigned(-7));
}

} // namespace
} // namespace Orvane::Testing
