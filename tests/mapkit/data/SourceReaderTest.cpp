// SPDX-License-Identifier: MIT
#include "mapkit/data/SourceReader.h"

#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class SourceReaderTest : public testing::Test
{
protected:
    SourceContents Read(const std::vector<LayerSource>& sources)
    {
        return ReadSources(sources, "EPSG:4326", m_progress);
    }

    DataFolder m_folder;
    Progress m_progress;
};

} // namespace

TEST_F(SourceReaderTest, GivesEachLayerItsFeatures)
{
    const QString first = m_folder.WriteSquare("first.geojson", 0, 0);
    const QString second = m_folder.WriteSquare("second.geojson", 50, 50);
    const SourceContents contents
        = Read({{1, second, "second", ""}, {2, first, "first", ""}, {3, second, "second", ""}});
    EXPECT_EQ(contents.features.at(1)->Bounds().minX, 50);
    EXPECT_EQ(contents.features.at(2)->Bounds().minX, 0);
    EXPECT_EQ(contents.features.at(3)->Bounds().minX, 50);
    EXPECT_EQ(contents.FailureText(), "");
    EXPECT_EQ(m_progress.Done(), 1);
}

TEST_F(SourceReaderTest, WhatCannotBeReadDoesNotStopTheRest)
{
    const QString good = m_folder.WriteSquare("good.geojson");
    const SourceContents contents = Read({{1, m_folder.Path("bad.gpkg"), "x", ""}, {2, good, "good", ""}});
    EXPECT_EQ(contents.features.count(2), 1u);
    EXPECT_TRUE(contents.failures.at(1).contains("bad.gpkg"));
}

TEST_F(SourceReaderTest, AReasonThatManyLayersShareIsToldOnce)
{
    SourceContents contents;
    contents.failures = {{1, "same"}, {2, "same"}, {3, "other"}};
    EXPECT_EQ(contents.FailureText(), "same\nother");
}

TEST_F(SourceReaderTest, AFloodOfReasonsIsCutShort)
{
    SourceContents contents;
    for (qint32 layerID = 0; layerID < 1000; ++layerID)
        contents.failures[layerID] = QString::number(layerID);
    EXPECT_LT(contents.FailureText().count('\n'), 10);
    EXPECT_TRUE(contents.FailureText().contains("992"));
}

TEST_F(SourceReaderTest, CancellingKeepsWhatWasRead)
{
    m_progress.Cancel();
    const SourceContents contents = Read({{1, m_folder.WriteSquare("a.geojson"), "a", ""}});
    EXPECT_TRUE(contents.features.empty());
    EXPECT_TRUE(contents.failures.empty());
}

} // namespace Orvane
