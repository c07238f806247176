// SPDX-License-Identifier: MIT
#include "shell/map/LayerAttributes.h"

#include "hostkit/StandardShellServices.h"
#include "mapkit/Drawings.h"
#include "mapkit/looks/RendererStyles.h"

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// An area with the ID of a feature in its source.
std::shared_ptr<const FeatureSet> AreaOfSource(qint64 featureID, double size)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Area, featureID);
    set.AddPart(std::vector<QPointF>{{0, 0}, {size, 0}, {size, size}, {0, 0}});
    return std::make_shared<const FeatureSet>(std::move(set));
}

class LayerAttributesTest : public testing::Test
{
protected:
    LayerAttributesTest()
    {
        m_layers.push_back(FilledLayer(1, Qt::blue, Area(0, 0, 1, 1)));
        m_layers[0].values.style = RendererStyles::Labelled | RendererStyles::Graduated;
        m_sources.push_back({1, "data.gpkg", "places", {}});
    }

    std::vector<AttributeRequest> Missing() const { return m_attributes.Missing(m_layers, m_sources); }

    // Answers every request.
    void ReadAll()
    {
        for (const AttributeRequest& request : Missing()) {
            AttributeColumn column;
            column.texts = {"Oslo"};
            column.numbers = {5};
            m_attributes.Take(request, std::make_shared<const AttributeColumn>(column));
        }
        m_attributes.Fit(m_layers[0], m_services);
    }

    std::vector<MapLayer> m_layers;
    std::vector<LayerSource> m_sources;
    LayerAttributes m_attributes;
    StandardShellServices m_services;
};

} // namespace

TEST_F(LayerAttributesTest, AStyleAsksForWhatItNeeds)
{
    ASSERT_EQ(Missing().size(), 2u);
    m_layers[0].values.style = RendererStyles::Graduated;
    ASSERT_EQ(Missing().size(), 1u);
    EXPECT_EQ(Missing()[0].use, AttributeUse::Classes);
    EXPECT_EQ(Missing()[0].features, m_layers[0].features);
    m_layers[0].values.style = RendererStyles::Cased;
    EXPECT_TRUE(Missing().empty());
}

TEST_F(LayerAttributesTest, WhatWasReadIsOnTheLayerAndNotMissing)
{
    ReadAll();
    EXPECT_TRUE(Missing().empty());
    ASSERT_TRUE(m_layers[0].labels);
    EXPECT_EQ(m_layers[0].labels->texts[0], "Oslo");
    ASSERT_TRUE(m_layers[0].classes);
    EXPECT_EQ(m_layers[0].classes->ClassOf(0), 0);
    EXPECT_EQ(m_layers[0].classLooks.size(), 1u);
}

TEST_F(LayerAttributesTest, FittingAgainChangesNothing)
{
    ReadAll();
    const MapLayer before = m_layers[0];
    m_attributes.Fit(m_layers[0], m_services);
    EXPECT_TRUE(m_layers[0].LooksLike(before));
}

TEST_F(LayerAttributesTest, AnotherAttributeIsReadAgain)
{
    ReadAll();
    m_attributes.SetRendering(1, {"kind", {}, ClassDivision::Quantiles, 5});
    ASSERT_EQ(Missing().size(), 1u);
    EXPECT_EQ(Missing()[0].attribute, "kind");
}

TEST_F(LayerAttributesTest, AnotherNumberOfClassesIsNotReadAgain)
{
    ReadAll();
    const MapLayer before = m_layers[0];
    m_attributes.SetRendering(1, {{}, {}, ClassDivision::Quantiles, 3});
    EXPECT_TRUE(Missing().empty());
    m_attributes.Fit(m_layers[0], m_services);
    EXPECT_FALSE(m_layers[0].LooksLike(before));
}

TEST_F(LayerAttributesTest, FeaturesReadAnewNeedTheirAttributesAgain)
{
    ReadAll();
    m_layers[0].features = Area(0, 0, 2, 2);
    EXPECT_EQ(Missing().size(), 2u);
    m_attributes.Fit(m_layers[0], m_services);
    EXPECT_FALSE(m_layers[0].labels);
}

TEST_F(LayerAttributesTest, TheSameFeaturesKeepTheirClassesUntilTheirAttributesAreReadAgain)
{
    m_layers[0].features = AreaOfSource(7, 1);
    ReadAll();
    const auto classes = m_layers[0].classes;
    m_layers[0].features = AreaOfSource(7, 2);
    m_attributes.Fit(m_layers[0], m_services);
    EXPECT_EQ(m_layers[0].classes, classes);
    EXPECT_TRUE(m_layers[0].labels);
    EXPECT_EQ(Missing().size(), 2u);
}

TEST_F(LayerAttributesTest, OtherFeaturesLoseTheClassesOfTheFormerOnes)
{
    m_layers[0].features = AreaOfSource(7, 1);
    ReadAll();
    m_layers[0].features = AreaOfSource(8, 1);
    m_attributes.Fit(m_layers[0], m_services);
    EXPECT_FALSE(m_layers[0].classes);
}

TEST_F(LayerAttributesTest, FeaturesThatWereReplacedAreNotKeptByAPlainStyle)
{
    ReadAll();
    const std::weak_ptr<const FeatureSet> before = m_layers[0].features;
    m_layers[0].values.style = 0;
    m_layers[0].features = Area(0, 0, 2, 2);
    m_attributes.Fit(m_layers[0], m_services);
    EXPECT_TRUE(before.expired());
}

TEST_F(LayerAttributesTest, APlainStyleLeavesThemAside)
{
    ReadAll();
    m_layers[0].values.style = 0;
    m_attributes.Fit(m_layers[0], m_services);
    EXPECT_FALSE(m_layers[0].labels);
    EXPECT_FALSE(m_layers[0].classes);
    EXPECT_TRUE(m_layers[0].classLooks.empty());
}

TEST_F(LayerAttributesTest, ForgottenLayersAreReadAgain)
{
    ReadAll();
    m_attributes.Forget(1);
    EXPECT_EQ(Missing().size(), 2u);
}

TEST_F(LayerAttributesTest, LayersWithoutFeaturesOrSourceAskForNothing)
{
    m_sources.clear();
    EXPECT_TRUE(Missing().empty());
    m_sources.push_back({1, "data.gpkg", "places", {}});
    m_layers[0].features = nullptr;
    EXPECT_TRUE(Missing().empty());
}

} // namespace Orvane
