// SPDX-License-Identifier: MIT
#include "mapkit/document/RenderingTable.h"

#include "mapkit/document/MapDocument.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

const LayerRendering ByPopulation{"NAME", "pop_est", ClassDivision::EqualSteps, 7, "heat", true};

} // namespace

TEST(RenderingTable, ALayerWithoutARowHasTheDefaults)
{
    const auto document = MapDocument::Untitled();
    EXPECT_EQ(document->Renderings().Of(17), LayerRendering());
    EXPECT_TRUE(document->Renderings().All().empty());
}

TEST(RenderingTable, KeepsWhatWasSetWithTheMapFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("map.orvane");
    qint32 layerID = 0;
    {
        const auto document = MapDocument::Create(path);
        layerID = document->AddLayer(NewLayer());
        document->Renderings().Set(layerID, LayerRendering());
        document->Renderings().Set(layerID, ByPopulation);
    }
    const auto document = MapDocument::Open(path);
    EXPECT_EQ(document->Renderings().Of(layerID), ByPopulation);
    EXPECT_EQ(document->Renderings().All().at(layerID), ByPopulation);
}

TEST(RenderingTable, ACopyOfAMapHasItToo)
{
    const QTemporaryDir folder;
    const auto document = MapDocument::Untitled();
    const qint32 layerID = document->AddLayer(NewLayer());
    document->Renderings().Set(layerID, ByPopulation);
    document->SaveCopy(folder.filePath("copy.orvane"));
    EXPECT_EQ(MapDocument::Open(folder.filePath("copy.orvane"))->Renderings().Of(layerID), ByPopulation);
}

TEST(RenderingTable, ADeletedLayerTakesItsRowAlong)
{
    const auto document = MapDocument::Untitled();
    const qint32 layerID = document->AddLayer(NewLayer());
    document->Renderings().Set(layerID, ByPopulation);
    document->Database().Execute("DELETE FROM Layers");
    EXPECT_TRUE(document->Renderings().All().empty());
}

TEST(RenderingTable, WhatAColumnCannotHoldIsTheDefault)
{
    const auto document = MapDocument::Untitled();
    const qint32 layerID = document->AddLayer(NewLayer());
    document->Renderings().Set(layerID, ByPopulation);
    document->Database().Execute("UPDATE LayerRendering SET Division = 9, ClassCount = 5000");
    EXPECT_EQ(document->Renderings().Of(layerID).division, ClassDivision::Quantiles);
    EXPECT_EQ(document->Renderings().Of(layerID).classCount, Classification::MaxCount);
}

} // namespace Orvane
