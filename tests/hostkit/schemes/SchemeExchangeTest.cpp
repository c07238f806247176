// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeExchange.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/LayerSchemes.h"

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString Standard = QStringLiteral("Standard");
const QString Night = QStringLiteral("Night");
const QString Roads = QStringLiteral("Roads");
const QString Rivers = QStringLiteral("Rivers");

class Exchange : public HostKitTest
{
protected:
    // What Roads has at night in the column of that number.
    static qint32 NightValue(int column)
    {
        const bool isFlag = SchemeColumns::All.at(std::size_t(column)).kind == ColumnKind::Flag;
        return isFlag ? (column + 1) % 2 : column + 1;
    }

    // Roads (code 7) and Rivers (no code), each column of each with a value for the night.
    SchemeDocument ExportNight()
    {
        AddLayer(1, Roads, 7);
        AddLayer(2, Rivers);
        m_schemes.Names();
        for (int column = 0; column < int(SchemeColumns::Count); ++column) {
            Set(1, SchemeColumns::All.at(std::size_t(column)).name, NightValue(column));
            Set(2, SchemeColumns::All.at(std::size_t(column)).name, Value::Null());
        }
        m_schemes.Create(Night);
        return SchemeExchange::Export(Database(), Night);
    }

    std::unique_ptr<ILayerStore> Map() { return Maker().CreateNameless(); }

    LayerSchemes m_schemes{Database()};
};

TEST_F(Exchange, EveryEditedColumnArrivesInAnotherMap)
{
    const SchemeDocument night = SchemeDocument::FromJson(ExportNight().ToJson());
    const auto map = Map();
    AddLayer(*map, 40, Roads, 7);
    AddLayer(*map, 41, Rivers, Value::Null());
    EXPECT_EQ(SchemeExchange::Import(*map, night).matched, 2);
    LayerSchemes(*map).Load(Night);
    for (int column = 0; column < int(SchemeColumns::Count); ++column) {
        EXPECT_THAT(
            Get(*map, 40, SchemeColumns::All.at(std::size_t(column)).name), IsNumber(NightValue(column)))
            << SchemeColumns::All.at(std::size_t(column)).name;
        EXPECT_THAT(Get(*map, 41, SchemeColumns::All.at(std::size_t(column)).name), IsNullValue())
            << SchemeColumns::All.at(std::size_t(column)).name;
    }
}

TEST_F(Exchange, ColoursWithATopByteArrive)
{
    AddLayer(1, Roads, 7);
    Set(1, "Color", qint32(0xFF0000FF));
    Set(1, "FillBackColor", qint32(0xFF000000));
    Set(1, "MinVisScale", 2500.5);
    m_schemes.Names();
    const SchemeDocument scheme
        = SchemeDocument::FromJson(SchemeExchange::Export(Database(), Standard).ToJson());
    for (const char* column : {"Color", "FillBackColor", "MinVisScale"})
        Set(1, column, 0);
    SchemeExchange::Import(Database(), scheme);
    m_schemes.Load(Standard);
    EXPECT_THAT(Get(1, "Color"), IsNumber(qint32(0xFF0000FF)));
    EXPECT_THAT(Get(1, "FillBackColor"), IsNumber(qint32(0xFF000000)));
    EXPECT_THAT(Get(1, "MinVisScale"), IsNumber(2500.5));
}

TEST_F(Exchange, SavedValuesAreExportedNotThoseOfTheLayers)
{
    SchemeDocument night = ExportNight();
    Set(1, "Priority", 99);
    night = SchemeExchange::Export(Database(), Night);
    EXPECT_THAT(night.layers[0].values[14], IsNumber(15));
}

TEST_F(Exchange, LayersAreTheSameByCodeBeforeTheyAreByName)
{
    const SchemeDocument night = ExportNight();
    const auto map = Map();
    AddLayer(*map, 40, QStringLiteral("Streets"), 7);
    AddLayer(*map, 41, Roads, 8);
    const SchemeImport report = SchemeExchange::Import(*map, night);
    LayerSchemes(*map).Load(Night);
    EXPECT_THAT(Get(*map, 40, "Priority"), IsNumber(15));
    EXPECT_THAT(Get(*map, 41, "Priority"), IsNumber(0));
    EXPECT_THAT(report.onlyInMap, ElementsAre(Roads));
}

TEST_F(Exchange, WhatDoesNotMatchIsReportedFromBothSides)
{
    const SchemeDocument night = ExportNight();
    const auto map = Map();
    AddLayer(*map, 40, Roads, 7);
    AddLayer(*map, 41, QStringLiteral("Parcels"), 9);
    AddLayer(*map, 42, QStringLiteral("Internal"), -2);
    const SchemeImport report = SchemeExchange::Import(*map, night);
    EXPECT_EQ(report.name, Night);
    EXPECT_EQ(report.matched, 1);
    EXPECT_THAT(report.onlyInFile, ElementsAre(Rivers));
    EXPECT_THAT(report.onlyInMap, ElementsAre(QStringLiteral("Parcels")));
}

TEST_F(Exchange, OfTwoLayersThatAreOneInTheMapTheFirstCounts)
{
    SchemeDocument scheme = ExportNight();
    scheme.layers[0].identity = {0, std::nullopt, Roads};
    scheme.layers[1].identity = {1, std::nullopt, Roads};
    const SchemeImport report = SchemeExchange::Import(Database(), scheme);
    EXPECT_EQ(report.matched, 1);
    EXPECT_THAT(report.onlyInFile, ElementsAre(Roads));
    m_schemes.Load(Standard);
    EXPECT_EQ(m_schemes.Load(Night), QSet<qint32>{1});
}

TEST_F(Exchange, AnImportLeavesTheLayersAndTheCurrentScheme)
{
    const SchemeDocument night = ExportNight();
    const auto map = Map();
    AddLayer(*map, 40, Roads, 7);
    SchemeExchange::Import(*map, night);
    EXPECT_THAT(Get(*map, 40, "Priority"), IsNumber(0));
    LayerSchemes schemes(*map);
    EXPECT_EQ(schemes.Current(), Standard);
    EXPECT_THAT(schemes.Names(), ElementsAre(Night, Standard));
    EXPECT_TRUE(schemes.LayersThatDiffer().isEmpty());
}

TEST_F(Exchange, AnImportReplacesASchemeOfItsName)
{
    const SchemeDocument night = ExportNight();
    AddLayer(3, QStringLiteral("Later"), 3);
    Set(1, "Priority", 99);
    m_schemes.Save(Night);
    const SchemeImport report = SchemeExchange::Import(Database(), night);
    EXPECT_THAT(m_schemes.Names(), ElementsAre(Night, Standard));
    m_schemes.Load(Night);
    EXPECT_THAT(Get(1, "Priority"), IsNumber(15));
    EXPECT_THAT(report.onlyInMap, ElementsAre(QStringLiteral("Later")));
    EXPECT_EQ(m_schemes.LayersThatDiffer(), QSet<qint32>{3});
}

TEST_F(Exchange, AnImportThatFailsChangesNothing)
{
    const SchemeDocument night = ExportNight();
    StoreMaker::Refuse(Database(), RowAct::Insert, QStringLiteral("LayerSchemeValues"), 2);
    EXPECT_EQ(ErrorOf([&] { SchemeExchange::Import(Database(), night); }), int(ErrorNumber::DatabaseFailure));
    Set(1, "Priority", 99);
    m_schemes.Load(Night);
    EXPECT_THAT(Get(1, "Priority"), IsNumber(15));
}

TEST_F(Exchange, AnUnknownSchemeIsNotExported)
{
    EXPECT_EQ(
        ErrorOf([&] { SchemeExchange::Export(Database(), QStringLiteral("Gone")); }),
        int(HostError::UnknownScheme));
}

TEST_F(Exchange, ASchemeWithoutLayersIsExportedAndImported)
{
    const SchemeDocument empty
        = SchemeDocument::FromJson(SchemeExchange::Export(Database(), Standard).ToJson());
    const SchemeImport report = SchemeExchange::Import(Database(), empty);
    EXPECT_EQ(report.matched, 0);
    EXPECT_THAT(report.onlyInFile, IsEmpty());
}

} // namespace
} // namespace Orvane::Testing
