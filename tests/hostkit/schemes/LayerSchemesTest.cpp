// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerSchemes.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

const QString Standard = QStringLiteral("Standard");
const QString Night = QStringLiteral("Night");

struct ColumnCase {
    const char* column;
    Value day;
    Value night;
};

// Every column that the layer control edits, and the quick mode.
const std::vector<ColumnCase>& EditedColumns()
{
    static const std::vector<ColumnCase> columns{
        {"Visible", 1, 0},
        {"Selectable", 1, 0},
        {"locked", 0, 1},
        {"Hitable", 1, 0},
        {"SnapRequired", 0, 1},
        {"Enquirable", 1, 0},
        {"Color", qint32(0xFF0000FF), 0x123456},
        {"FillForeColor", 0x808080, qint32(0xFF000000)},
        {"FillBackColor", qint32(0xFF000000), 0x00FF00},
        {"OutlineStyle", 0, 5},
        {"FillStyle", 15, 31},
        {"LineThickness", -3, 2},
        {"MinVisScale", 2500.5, 0.0},
        {"MaxVisScale", 2000000000, 50000},
        {"Priority", 1, 255},
        {"Style", 0, 3},
        {"OverrideMode", 2, 1},
    };
    return columns;
}

class Schemes : public HostKitTest
{
protected:
    void SetHue(qint32 layerID, qint32 colour) { Set(layerID, "Color", colour); }
    Value Hue(qint32 layerID) { return Get(layerID, "Color"); }

    LayerSchemes m_schemes{Database()};
};

TEST_F(Schemes, AMapWithoutSchemesGetsTheStandardSchemeOfItsLayers)
{
    AddLayers(1);
    SetHue(1, 100);
    EXPECT_THAT(m_schemes.Names(), ElementsAre(Standard));
    EXPECT_EQ(m_schemes.Current(), Standard);
    SetHue(1, 200);
    m_schemes.Load(Standard);
    EXPECT_THAT(Hue(1), IsNumber(100));
}

TEST_F(Schemes, TheStandardSchemeIsMadeOnce)
{
    m_schemes.Names();
    m_schemes.Create(Night);
    m_schemes.Delete(Standard);
    EXPECT_THAT(LayerSchemes(Database()).Names(), ElementsAre(Night));
}

TEST_F(Schemes, EverySchemeHoldsItsOwnValueOfEveryEditedColumn)
{
    AddLayers(1);
    for (const ColumnCase& edited : EditedColumns())
        Set(1, edited.column, edited.day);
    m_schemes.Create(Night);
    for (const ColumnCase& edited : EditedColumns())
        Set(1, edited.column, edited.night);
    m_schemes.Save(Night);
    m_schemes.Load(Standard); // was made with the day's values when Night was created
    for (const ColumnCase& edited : EditedColumns())
        EXPECT_THAT(Get(1, edited.column), IsNumber(ToDouble(edited.day))) << edited.column;
    m_schemes.Load(Night);
    for (const ColumnCase& edited : EditedColumns())
        EXPECT_THAT(Get(1, edited.column), IsNumber(ToDouble(edited.night))) << edited.column;
}

TEST_F(Schemes, NameAndCodeBelongToNoScheme)
{
    AddLayer(1, QStringLiteral("Roads"), 5);
    m_schemes.Names();
    Set(1, "Name", QStringLiteral("Streets"));
    Set(1, "Code", 6);
    m_schemes.Load(Standard);
    EXPECT_THAT(Get(1, "Name"), IsValue(QStringLiteral("Streets")));
    EXPECT_THAT(Get(1, "Code"), IsNumber(6));
}

TEST_F(Schemes, NullsAreKeptAsNulls)
{
    AddLayers(2);
    Set(1, "Priority", Value::Null());
    Set(2, "Priority", 7);
    m_schemes.Names();
    Set(1, "Priority", 9);
    Set(2, "Priority", Value::Null());
    EXPECT_EQ(m_schemes.Load(Standard), (QSet<qint32>{1, 2}));
    EXPECT_THAT(Get(1, "Priority"), IsNullValue());
    EXPECT_THAT(Get(2, "Priority"), IsNumber(7));
}

TEST_F(Schemes, LoadingNamesTheLayersThatChanged)
{
    AddLayers(3);
    m_schemes.Names();
    SetHue(2, 77);
    EXPECT_EQ(m_schemes.Load(Standard), QSet<qint32>{2});
    EXPECT_TRUE(m_schemes.Load(Standard).isEmpty());
}

TEST_F(Schemes, LayersMadeSinceASaveKeepTheirValues)
{
    AddLayers(1);
    m_schemes.Names();
    AddLayer(2, QStringLiteral("Later"));
    SetHue(2, 77);
    m_schemes.Load(Standard);
    EXPECT_THAT(Hue(2), IsNumber(77));
}

TEST_F(Schemes, LayersDeletedSinceASaveAreForgotten)
{
    AddLayers(2);
    m_schemes.Names();
    Database().Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 1"));
    EXPECT_TRUE(m_schemes.Load(Standard).isEmpty());
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM LayerSchemeValues")), 1);
}

TEST_F(Schemes, ANewSchemeIsCurrent)
{
    m_schemes.Create(Night);
    EXPECT_EQ(m_schemes.Current(), Night);
}

TEST_F(Schemes, TheLoadedSchemeIsCurrentAndStaysSoInTheFile)
{
    const QString path = OtherMap();
    {
        const auto database = Maker().Create(path);
        LayerSchemes schemes(*database);
        schemes.Create(Night);
        schemes.Load(Standard);
        schemes.Load(Night);
    }
    const auto database = Maker().Open(path);
    EXPECT_EQ(LayerSchemes(*database).Current(), Night);
}

TEST_F(Schemes, NamesAreListedAsAUserOrdersThem)
{
    m_schemes.Create(QStringLiteral("Zone 2"));
    m_schemes.Create(QStringLiteral("Ash"));
    EXPECT_THAT(m_schemes.Names(), ElementsAre(QStringLiteral("Ash"), Standard, QStringLiteral("Zone 2")));
}

TEST_F(Schemes, AnyTextIsAName)
{
    AddLayers(1);
    const QStringList names{
        QStringLiteral("O'Neill's \"best\""),
        QString::fromUtf8("🗺 карта"),
        QString::fromUtf8("שלום"),
        QStringLiteral("a\nb"),
        QString(10000, u'x'),
        QStringLiteral("'); DROP TABLE Layers; --")};
    for (const QString& name : names) {
        m_schemes.Create(name);
        EXPECT_EQ(m_schemes.Current(), name);
        SetHue(1, 1);
        m_schemes.Save(name);
        SetHue(1, 2);
        EXPECT_EQ(m_schemes.Load(name), QSet<qint32>{1});
        m_schemes.Delete(name);
    }
    EXPECT_THAT(m_schemes.Names(), ElementsAre(Standard));
}

TEST_F(Schemes, NamesThatDifferInCaseAreTwoSchemes)
{
    m_schemes.Create(QStringLiteral("night"));
    m_schemes.Create(Night);
    EXPECT_EQ(m_schemes.Names().size(), 3);
}

TEST_F(Schemes, ASecondSchemeOfTheSameNameIsRefused)
{
    m_schemes.Create(Night);
    EXPECT_EQ(ErrorOf([&] { m_schemes.Create(Night); }), int(HostError::DuplicateScheme));
    EXPECT_EQ(m_schemes.Names().size(), 2);
}

TEST_F(Schemes, AnUnknownSchemeIsNamedInTheError)
{
    EXPECT_EQ(ErrorOf([&] { m_schemes.Load(Night); }), int(HostError::UnknownScheme));
    EXPECT_EQ(ErrorOf([&] { m_schemes.Save(Night); }), int(HostError::UnknownScheme));
    EXPECT_EQ(ErrorOf([&] { m_schemes.Delete(Night); }), int(HostError::UnknownScheme));
    EXPECT_TRUE(DescriptionOf([&] { m_schemes.Load(Night); }).contains(Night));
}

TEST_F(Schemes, TheLastOneCannotBeDeleted)
{
    EXPECT_EQ(ErrorOf([&] { m_schemes.Delete(Standard); }), int(HostError::LastScheme));
    EXPECT_THAT(m_schemes.Names(), ElementsAre(Standard));
}

TEST_F(Schemes, DeletingTheCurrentOneMakesTheFirstOtherCurrentAndLeavesTheLayers)
{
    AddLayers(1);
    SetHue(1, 10);
    m_schemes.Names();
    SetHue(1, 20);
    m_schemes.Create(Night);
    m_schemes.Delete(Night);
    EXPECT_EQ(m_schemes.Current(), Standard);
    EXPECT_THAT(Hue(1), IsNumber(20));
}

TEST_F(Schemes, DeletingAnotherOneKeepsTheCurrentOne)
{
    m_schemes.Create(QStringLiteral("Ash"));
    m_schemes.Create(Night);
    m_schemes.Delete(Standard);
    EXPECT_EQ(m_schemes.Current(), Night);
}

TEST_F(Schemes, LoadingTakesTheSameStatementsForAnyNumberOfLayers)
{
    AddLayers(1);
    m_schemes.Names();
    const QStringList few = StatementsOf([&] { m_schemes.Load(Standard); });
    Database().Execute(QStringLiteral("DELETE FROM Layers"));
    AddLayers(1000);
    m_schemes.Save(Standard);
    Database().Execute(QStringLiteral("UPDATE Layers SET Priority = LayerID"));
    const QStringList many = StatementsOf([&] { EXPECT_EQ(m_schemes.Load(Standard).size(), 1000); });
    EXPECT_EQ(few, many);
}

TEST_F(Schemes, SavingTakesTheSameStatementsForAnyNumberOfLayers)
{
    AddLayers(1);
    m_schemes.Names();
    const QStringList few = StatementsOf([&] { m_schemes.Save(Standard); });
    Database().Execute(QStringLiteral("DELETE FROM Layers"));
    AddLayers(1000);
    EXPECT_EQ(StatementsOf([&] { m_schemes.Save(Standard); }), few);
}

TEST_F(Schemes, ALoadThatFailsChangesNothing)
{
    AddLayers(2);
    m_schemes.Names();
    m_schemes.Create(Night);
    Database().Execute(QStringLiteral("UPDATE Layers SET Color = 5"));
    StoreMaker::Refuse(Database(), RowAct::Update, QStringLiteral("Layers"), 2);
    EXPECT_EQ(ErrorOf([&] { m_schemes.Load(Standard); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_THAT(Hue(1), IsNumber(5));
    EXPECT_EQ(m_schemes.Current(), Night);
}

TEST_F(Schemes, ASaveThatFailsKeepsTheSavedValues)
{
    AddLayers(1);
    SetHue(1, 10);
    m_schemes.Names();
    SetHue(1, 20);
    StoreMaker::Refuse(Database(), RowAct::Insert, QStringLiteral("LayerSchemeValues"), 1);
    EXPECT_EQ(ErrorOf([&] { m_schemes.Save(Standard); }), int(ErrorNumber::DatabaseFailure));
    m_schemes.Load(Standard);
    EXPECT_THAT(Hue(1), IsNumber(10));
}

TEST_F(Schemes, TellWhichLayersDifferFromTheCurrentOne)
{
    AddLayers(2);
    m_schemes.Names();
    EXPECT_TRUE(m_schemes.LayersThatDiffer().isEmpty());
    SetHue(2, 99);
    EXPECT_EQ(m_schemes.LayersThatDiffer(), QSet<qint32>{2});
    EXPECT_EQ(m_schemes.LayersThatDiffer({1, 2, 7}), QSet<qint32>{2});
    EXPECT_TRUE(m_schemes.LayersThatDiffer({1}).isEmpty());
    m_schemes.Save(Standard);
    EXPECT_TRUE(m_schemes.LayersThatDiffer().isEmpty());
}

TEST_F(Schemes, ALayerThatTheSchemeDoesNotKnowIsADifference)
{
    m_schemes.Names();
    AddLayers(1);
    EXPECT_EQ(m_schemes.LayersThatDiffer(), QSet<qint32>{1});
    EXPECT_EQ(m_schemes.LayersThatDiffer({1}), QSet<qint32>{1});
}

TEST_F(Schemes, TheTwoStoredFormsOfNoMaximumScaleAreNoDifference)
{
    AddLayers(1);
    Set(1, "MaxVisScale", 2000000000);
    m_schemes.Names();
    Set(1, "MaxVisScale", 0);
    EXPECT_TRUE(m_schemes.LayersThatDiffer().isEmpty());
    Set(1, "MaxVisScale", 50000);
    EXPECT_EQ(m_schemes.LayersThatDiffer(), QSet<qint32>{1});
    Set(1, "MaxVisScale", Value::Null());
    EXPECT_EQ(m_schemes.LayersThatDiffer(), QSet<qint32>{1});
}

TEST_F(Schemes, AMereLookMakesNone)
{
    AddLayers(1);
    EXPECT_EQ(m_schemes.CurrentName(), Standard);
    EXPECT_TRUE(m_schemes.LayersThatDiffer().isEmpty());
    EXPECT_FALSE(Database().HasTable(QStringLiteral("LayerSchemes")));
    m_schemes.Create(Night);
    EXPECT_EQ(m_schemes.CurrentName(), Night);
}

TEST_F(Schemes, AReadOnlyMapShowsTheStandardSchemeAndCannotSave)
{
    const QString path = OtherMap();
    Maker().Create(path);
    const auto database = Maker().Open(path, OpenMode::ReadOnly);
    LayerSchemes schemes(*database);
    EXPECT_THAT(schemes.Names(), ElementsAre(Standard));
    EXPECT_EQ(schemes.Current(), Standard);
    EXPECT_TRUE(schemes.LayersThatDiffer().isEmpty());
    EXPECT_TRUE(schemes.LayersThatDiffer({1}).isEmpty());
    EXPECT_EQ(ErrorOf([&] { schemes.Save(Standard); }), int(ErrorNumber::DatabaseReadOnly));
}

} // namespace
} // namespace Orvane::Testing
