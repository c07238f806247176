// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerSchemes.h"
#include "servers/ServerMapTest.h"

namespace Orvane::Testing {

namespace {

class SchemeRoundTripsTest : public ServerMapTest
{
};

} // namespace

TEST_F(SchemeRoundTripsTest, AThousandLayersTakeAnotherSchemesValuesInAHandful)
{
    LayerSchemes schemes(*m_store);
    schemes.Create(QStringLiteral("Night"));
    m_store->Execute(QStringLiteral("UPDATE Layers SET Visible = FALSE WHERE LayerID <= 1000"));
    qsizetype changed = 0;
    EXPECT_LE(RoundTripsOf([&] { changed = schemes.Load(QStringLiteral("Night")).size(); }), 7);
    EXPECT_EQ(changed, 1000);
}

} // namespace Orvane::Testing
