// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/KnownSystems.h"

#include "mapkit/coordinates/SystemFacts.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace Orvane {

TEST(KnownSystems, AreThoseForMapsOrderedByName)
{
    const std::vector<KnownSystem> systems = ReadKnownSystems();
    ASSERT_GT(systems.size(), 5000u);
    EXPECT_TRUE(std::is_sorted(
        systems.begin(), systems.end(), [](const auto& a, const auto& b) { return a.name < b.name; }));
    const auto has = [&](const char* code) {
        return std::any_of(systems.begin(), systems.end(), [&](const KnownSystem& system) {
            return system.code == QLatin1String(code);
        });
    };
    EXPECT_TRUE(has("EPSG:4326"));
    EXPECT_TRUE(has("EPSG:32632"));
    EXPECT_FALSE(has("EPSG:5703")); // heights
    EXPECT_FALSE(has("EPSG:4978")); // geocentric
    EXPECT_FALSE(has("EPSG:3785")); // deprecated
    EXPECT_FALSE(has("ESRI:104905")); // on Mars
}

TEST(KnownSystems, AreFoundByNameCodeAndArea)
{
    const std::vector<KnownSystem> systems = ReadKnownSystems();
    const auto utm = std::find_if(systems.begin(), systems.end(), [](const KnownSystem& system) {
        return system.code == "EPSG:25832";
    });
    ASSERT_NE(utm, systems.end());
    for (const char* word : {"utm", "25832", "germany"})
        EXPECT_TRUE(utm->searchText.contains(QLatin1String(word))) << word;
    EXPECT_TRUE(FactsOf(utm->code).isKnown);
}

TEST(KnownSystems, ASearchTakesNoNoticeOfCaseAndAccents)
{
    EXPECT_EQ(SearchForm(QStringLiteral("R\u00e9union")), "reunion");
}

} // namespace Orvane
