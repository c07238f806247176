// SPDX-License-Identifier: MIT
#include "mapkit/data/AttributeColumn.h"

#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <cmath>
#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AttributeColumnTest : public testing::Test
{
protected:
    AttributeColumn Read(AttributeUse use, const QString& attribute = {}, const QString& filter = {})
    {
        const LayerSource source{1, m_path, "places", filter};
        const auto features = std::make_shared<const FeatureSet>(
            DataSource(m_path).Read("places", filter, "EPSG:4326", m_progress));
        return ReadAttribute({source, features, use, attribute}, m_progress);
    }

    DataFolder m_folder;
    Progress m_progress;
    const QString m_path = m_folder.Write("places.geojson", R"({"type":"FeatureCollection","features":[
{"type":"Feature","properties":{"kind":"town","NAME":" Oslo ","place_id":7,"pop":700.5,"since":"1048-01-01","big":true},
 "geometry":{"type":"Point","coordinates":[10,59]}},
{"type":"Feature","properties":{"kind":"city","NAME":"Bergen","place_id":8,"pop":null,"since":"1070-01-01","big":true},
 "geometry":{"type":"GeometryCollection","geometries":[{"type":"Point","coordinates":[5,60]},
   {"type":"Point","coordinates":[5.1,60]}]}},
{"type":"Feature","properties":{"kind":"town","NAME":null,"place_id":9,"pop":20,"since":"1900-01-01","big":false},
 "geometry":{"type":"Point","coordinates":[11,59]}}]})");
};

SourceField TextField(const char* name)
{
    return {name, false, true};
}

SourceField NumberField(const char* name)
{
    return {name, true, false};
}

} // namespace

TEST_F(AttributeColumnTest, TextsAreThoseOfTheFeaturesInTheirOrder)
{
    const AttributeColumn column = Read(AttributeUse::Labels);
    EXPECT_EQ(column.attribute, "NAME");
    EXPECT_THAT(column.texts, ElementsAre("Oslo", "Bergen", "Bergen", ""));
    EXPECT_THAT(column.numbers, IsEmpty());
}

TEST_F(AttributeColumnTest, NumbersAreThoseOfTheFeaturesInTheirOrder)
{
    const AttributeColumn column = Read(AttributeUse::Classes);
    EXPECT_EQ(column.attribute, "pop");
    ASSERT_EQ(column.numbers.size(), 4u);
    EXPECT_EQ(column.numbers[0], 700.5);
    EXPECT_TRUE(std::isnan(column.numbers[1]));
    EXPECT_EQ(column.numbers[3], 20);
}

TEST_F(AttributeColumnTest, AFilteredLayersTextsBelongToItsFeatures)
{
    EXPECT_THAT(Read(AttributeUse::Labels, "kind", "kind = 'city'").texts, ElementsAre("city", "city"));
}

TEST_F(AttributeColumnTest, AnyAttributeCanBeALabel)
{
    EXPECT_THAT(Read(AttributeUse::Labels, "place_id").texts, ElementsAre("7", "8", "8", "9"));
}

TEST_F(AttributeColumnTest, AnAttributeThatTheSourceDoesNotHaveIsNone)
{
    const AttributeColumn column = Read(AttributeUse::Labels, "nothing");
    EXPECT_EQ(column.attribute, "");
    EXPECT_THAT(column.texts, IsEmpty());
}

TEST_F(AttributeColumnTest, ASourceThatIsGoneIsAnError)
{
    const LayerSource gone{1, m_folder.Path("gone.gpkg"), "places", {}};
    const AttributeRequest request{gone, std::make_shared<const FeatureSet>(), AttributeUse::Labels, {}};
    EXPECT_THROW(ReadAttribute(request, m_progress), RunTimeError);
}

TEST_F(AttributeColumnTest, FieldsSayWhetherTheyAreNumbersOrTexts)
{
    const std::vector<SourceField> fields = DataSource(m_path).Fields("places");
    ASSERT_EQ(fields.size(), 6u);
    EXPECT_EQ(fields[0].name, "kind");
    EXPECT_TRUE(fields[0].isText);
    EXPECT_TRUE(fields[3].isNumber);
    EXPECT_FALSE(fields[4].isText || fields[4].isNumber) << "a date";
    EXPECT_FALSE(fields[5].isNumber) << "a flag";
}

TEST(BestAttribute, ANameServesLabelsBest)
{
    const auto best
        = [](const std::vector<SourceField>& fields) { return BestAttribute(fields, AttributeUse::Labels); };
    EXPECT_EQ(best({TextField("kind"), TextField("name_en"), TextField("Name")}), "Name");
    EXPECT_EQ(best({TextField("kind"), NumberField("name"), TextField("name_en")}), "name_en");
    EXPECT_EQ(best({NumberField("height"), TextField("kind")}), "kind");
    EXPECT_EQ(best({NumberField("height")}), "height");
    EXPECT_EQ(best({}), "");
}

TEST(BestAttribute, ANumberThatIsNoIdentifierServesClassesBest)
{
    const auto best
        = [](const std::vector<SourceField>& fields) { return BestAttribute(fields, AttributeUse::Classes); };
    EXPECT_EQ(best({NumberField("OBJECTID"), NumberField("place_id"), NumberField("width")}), "width");
    EXPECT_EQ(best({TextField("kind"), NumberField("fid")}), "fid");
    EXPECT_EQ(best({TextField("kind")}), "");
}

} // namespace Orvane
