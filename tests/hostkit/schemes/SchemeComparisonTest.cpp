// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeComparison.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeColumns.h"

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString Day = QStringLiteral("Day");
const QString Night = QStringLiteral("Night");

class Comparison : public HostKitTest
{
protected:
    Comparison()
    {
        AddLayers(3);
        m_schemes.Create(Day);
    }

    // "2 Color 0 5"
    QStringList Lines(const std::optional<QString>& from, const QString& to)
    {
        QStringList lines;
        for (const SchemeDifference& line : SchemeComparison::Compare(Database(), from, to)) {
            const auto text = [](const std::optional<double>& value) {
                return value ? QString::number(*value) : QStringLiteral("null");
            };
            lines << QStringLiteral("%1 %2 %3 %4")
                         .arg(line.layerID)
                         .arg(QLatin1String(SchemeColumns::All.at(line.column).name))
                         .arg(text(line.from), text(line.to));
        }
        return lines;
    }

    LayerSchemes m_schemes{Database()};
};

TEST_F(Comparison, FindsNothingWhereNothingDiffers)
{
    EXPECT_THAT(Lines(std::nullopt, Day), IsEmpty());
}

TEST_F(Comparison, OfTheLayersAndASchemeNamesEachValue)
{
    Set(2, "Color", 5);
    Set(2, "Visible", false);
    Set(3, "Priority", Value::Null());
    const QStringList lines = Lines(std::nullopt, Day);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0], QStringLiteral("2 Visible 0 1"));
    EXPECT_EQ(lines[1], QStringLiteral("2 Color 5 0"));
    EXPECT_TRUE(lines[2].startsWith(QStringLiteral("3 Priority null ")));
}

TEST_F(Comparison, OfTwoSchemesDoesNotLookAtTheLayers)
{
    Set(1, "Color", 5);
    m_schemes.Create(Night);
    Set(1, "Color", 9);
    EXPECT_THAT(Lines(Day, Night), ElementsAre(QStringLiteral("1 Color 0 5")));
    EXPECT_THAT(Lines(Night, Day), ElementsAre(QStringLiteral("1 Color 5 0")));
}

TEST_F(Comparison, TakesBothFormsOfNoLimitAsEqual)
{
    Set(1, "MaxVisScale", 0.0);
    m_schemes.Create(Night);
    Set(1, "MaxVisScale", 2'000'000'000.0);
    EXPECT_THAT(Lines(std::nullopt, Night), IsEmpty());
}

TEST_F(Comparison, TellsOfLayersThatOneSideDoesNotHave)
{
    AddLayer(9, QStringLiteral("New"));
    m_schemes.Create(Night);
    using Kind = SchemeDifference::Kind;
    const auto kindOf = [this](const std::optional<QString>& from, const QString& to) {
        const std::vector<SchemeDifference> lines = SchemeComparison::Compare(Database(), from, to);
        EXPECT_EQ(lines.size(), 1U);
        EXPECT_EQ(lines.front().layerID, 9);
        return lines.front().kind;
    };
    EXPECT_EQ(kindOf(std::nullopt, Day), Kind::NotInSecond);
    EXPECT_EQ(kindOf(Night, Day), Kind::NotInSecond);
    EXPECT_EQ(kindOf(Day, Night), Kind::NotInFirst);
}

TEST_F(Comparison, OfAReadOnlyMapWithoutSchemesFindsNothing)
{
    const QString path = OtherMap();
    Maker().Create(path);
    const auto database = Maker().Open(path, OpenMode::ReadOnly);
    const QString standard = LayerSchemes(*database).Current();
    EXPECT_TRUE(SchemeComparison::Compare(*database, std::nullopt, standard).empty());
    EXPECT_EQ(LayerSchemes(*database).CountThatDiffer(standard), 0);
}

TEST_F(Comparison, OfAnUnknownSchemeFails)
{
    EXPECT_EQ(ErrorOf([this] { Lines(std::nullopt, Night); }), int(HostError::UnknownScheme));
}

} // namespace
} // namespace Orvane::Testing
