// SPDX-License-Identifier: MIT
#include "hostkit/manager/DifferencesModel.h"

#include "hostkit/manager/SchemeValueTexts.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "hosts/MemoryHost.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QImage>
#include <QPixmap>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string_view>

namespace Orvane::Testing {
namespace {

std::size_t ColumnOf(std::string_view name)
{
    std::size_t position = 0;
    while (SchemeColumns::All.at(position).name != name)
        ++position;
    return position;
}

SchemeDifference
Differing(qint32 layerID, std::string_view column, std::optional<double> from, std::optional<double> to)
{
    return {layerID, SchemeDifference::Kind::Value, ColumnOf(column), from, to};
}

class DifferencesInATable : public testing::Test
{
protected:
    QString Text(int row, int column) const { return m_model.index(row, column).data().toString(); }

    // The text of that value.
    QString Value(std::string_view column, std::optional<double> value)
    {
        m_model.Show({Differing(1, column, value, value)});
        return Text(0, DifferencesModel::From);
    }

    MemoryHost m_host;
    SchemeValueTexts m_texts{m_host};
    DifferencesModel m_model{m_texts, [](qint32 layerID) { return QStringLiteral("Layer %1").arg(layerID); }};
    QAbstractItemModelTester m_tester{&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(DifferencesInATable, SayLayerPropertyAndBothValues)
{
    m_model.Show({Differing(7, "locked", 0, 1)});
    EXPECT_EQ(Text(0, DifferencesModel::Layer), QStringLiteral("Layer 7"));
    EXPECT_EQ(Text(0, DifferencesModel::Property), QStringLiteral("Locked"));
    EXPECT_EQ(Text(0, DifferencesModel::From), QStringLiteral("no"));
    EXPECT_EQ(Text(0, DifferencesModel::To), QStringLiteral("yes"));
}

TEST_F(DifferencesInATable, ShowValuesAsTheDialogDoes)
{
    EXPECT_EQ(Value("Color", 0x0000FF), QStringLiteral("#FF0000"));
    EXPECT_EQ(Value("Color", qint32(0xFF0000FFU)), QStringLiteral("#FF0000, not for symbols"));
    EXPECT_EQ(Value("FillForeColor", qint32(0xFF000000U)), QStringLiteral("Transparent"));
    EXPECT_EQ(Value("OutlineStyle", 1), QStringLiteral("Dashed line"));
    EXPECT_EQ(Value("OutlineStyle", 15), QStringLiteral("<none>"));
    EXPECT_EQ(Value("LineThickness", -2), QStringLiteral("Pixels: 2"));
    EXPECT_EQ(Value("LineThickness", 3), QStringLiteral("3 mm"));
    EXPECT_EQ(Value("FillStyle", 0), QStringLiteral("Solid"));
    EXPECT_EQ(Value("MinVisScale", 0), QStringLiteral("dont care"));
    EXPECT_EQ(Value("MaxVisScale", 500), QStringLiteral("1:500"));
    EXPECT_EQ(Value("OverrideMode", 2), QStringLiteral("Hidden"));
    EXPECT_EQ(Value("Style", 0), QStringLiteral("Standard"));
    EXPECT_EQ(Value("Priority", std::nullopt), QStringLiteral("not known"));
}

TEST_F(DifferencesInATable, EveryColumnHasACaption)
{
    for (std::size_t column = 0; column < SchemeColumns::Count; ++column)
        EXPECT_TRUE(SchemeValueTexts::Property(column).front().isUpper())
            << SchemeColumns::All.at(column).name;
    EXPECT_NE(SchemeValueTexts::Property(ColumnOf("Color")), QStringLiteral("Color"));
}

TEST_F(DifferencesInATable, ShowColoursAsSwatches)
{
    m_model.Show({Differing(1, "Color", 0x0000FF, 0x00FF00), Differing(1, "Priority", 1, 2)});
    const auto picture
        = [this](int row, int column) { return m_model.index(row, column).data(Qt::DecorationRole); };
    const auto colour
        = [&](int column) { return picture(0, column).value<QPixmap>().toImage().pixelColor(16, 16); };
    EXPECT_EQ(colour(DifferencesModel::From), QColor(Qt::red));
    EXPECT_EQ(colour(DifferencesModel::To), QColor(Qt::green));
    EXPECT_FALSE(picture(1, DifferencesModel::From).isValid());
    EXPECT_FALSE(picture(0, DifferencesModel::Layer).isValid());
}

TEST_F(DifferencesInATable, SayWhichSideHasNoValuesOfALayer)
{
    m_model.Show({{3, SchemeDifference::Kind::NotInFirst, 0, {}, {}}});
    EXPECT_EQ(Text(0, DifferencesModel::Property), QStringLiteral("All"));
    EXPECT_EQ(Text(0, DifferencesModel::From), QStringLiteral("not in the scheme"));
    EXPECT_EQ(Text(0, DifferencesModel::To), QString());
}

TEST_F(DifferencesInATable, AreFilteredByWordsOfLayerAndProperty)
{
    m_model.Show({Differing(1, "Color", 1, 2), Differing(1, "Visible", 0, 1), Differing(2, "Visible", 0, 1)});
    m_model.SetFilter(QStringLiteral("VISI 2"));
    ASSERT_EQ(m_model.rowCount(), 1);
    EXPECT_EQ(m_model.At(0).layerID, 2);
    EXPECT_EQ(m_model.Count(), 3U);
    m_model.SetFilter({});
    EXPECT_EQ(m_model.rowCount(), 3);
}

TEST_F(DifferencesInATable, AreThoseOfOnePartOfTheProperties)
{
    m_model.Show(
        {Differing(1, "Color", 1, 2),
         Differing(1, "Visible", 0, 1),
         Differing(1, "MinVisScale", 0, 500),
         {2, SchemeDifference::Kind::NotInFirst, 0, {}, {}}});
    const auto columns = [this](SchemeParts parts) {
        m_model.SetParts(parts);
        QStringList properties;
        for (int row = 0; row < m_model.rowCount(); ++row)
            properties << Text(row, DifferencesModel::Property);
        return properties;
    };
    EXPECT_THAT(columns(SchemePart::Flags), testing::ElementsAre(QStringLiteral("Visible")));
    EXPECT_THAT(columns(SchemePart::Appearance), testing::ElementsAre(QStringLiteral("Line colour")));
    EXPECT_THAT(columns(SchemePart::Scales), testing::ElementsAre(QStringLiteral("Minimum visible scale")));
    EXPECT_EQ(columns(WholeScheme).size(), 4);
}

} // namespace
} // namespace Orvane::Testing
