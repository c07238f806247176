// SPDX-License-Identifier: MIT
#include "ovctrls/CheckBoxPlus.h"
#include "ovctrls/CheckBoxPlusFixture.h"
#include "ovctrls/PropertyBag.h"

#include <QCheckBox>
#include <QImage>
#include <QPalette>

namespace Orvane::Testing {

namespace {

QPalette DarkPalette()
{
    QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    return dark;
}

class CheckBoxPlusLookTest : public testing::Test
{
protected:
    CheckBoxPlusLookTest() { m_box.resize(120, 24); }

    QImage Picture(int value)
    {
        m_box.setValue(value);
        return m_box.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    QColor Corner() { return m_box.grab().toImage().pixelColor(m_box.width() - 2, 2); }
    QColor TextColour()
    {
        return m_box.findChild<QCheckBox*>("Check1")->palette().color(QPalette::Active, QPalette::WindowText);
    }

    CheckBoxPlus m_box;
};

int LargestDifference(const QImage& left, const QImage& right)
{
    int largest = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x)
            largest = std::max(largest, std::abs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y))));
    }
    return largest;
}

TEST_F(CheckBoxPlusLookTest, TheThreeStatesAreToldApartInLightAndDark)
{
    for (const QPalette& palette : {QPalette(QColor(240, 240, 240)), DarkPalette()}) {
        m_box.setPalette(palette);
        EXPECT_GT(LargestDifference(Picture(0), Picture(1)), 60);
        EXPECT_GT(LargestDifference(Picture(0), Picture(2)), 60);
        EXPECT_GT(LargestDifference(Picture(1), Picture(2)), 60);
    }
}

TEST_F(CheckBoxPlusLookTest, AnUnderlineIsSeen)
{
    m_box.setCaption("Locked");
    const QImage plain = Picture(0);
    QFont font = m_box.Font();
    font.setUnderline(true);
    m_box.setFont(font);
    EXPECT_NE(Picture(0), plain);
}

TEST_F(CheckBoxPlusLookTest, ABackColourIsBlueGreenRed)
{
    m_box.setBackColor(0x0000FF);
    EXPECT_EQ(Corner(), QColor(255, 0, 0));
    m_box.setBackColor(0xFF0000);
    EXPECT_EQ(Corner(), QColor(0, 0, 255));
}

TEST_F(CheckBoxPlusLookTest, TheFaceColourLetsTheContainerShowThrough)
{
    QWidget container;
    QPalette green;
    green.setColor(QPalette::Window, QColor(0, 255, 0));
    container.setPalette(green);
    container.resize(50, 50);
    CheckBoxPlus box(&container);
    box.setBackColor(0xFF);
    box.setBackColor(SystemColour::ButtonFace);

    EXPECT_EQ(container.grab().toImage().pixelColor(45, 45), QColor(0, 255, 0));
    EXPECT_FALSE(box.findChild<QCheckBox*>("Check1")->autoFillBackground());
}

TEST_F(CheckBoxPlusLookTest, ASystemColourFollowsAChangeOfTheme)
{
    m_box.setForeColor(qint32(0x8000000Du));
    QPalette palette;
    palette.setColor(QPalette::Highlight, QColor(1, 2, 3));
    m_box.setPalette(palette);
    EXPECT_EQ(TextColour(), QColor(1, 2, 3));
    palette.setColor(QPalette::Highlight, QColor(4, 5, 6));
    m_box.setPalette(palette);
    EXPECT_EQ(TextColour(), QColor(4, 5, 6));
}

TEST_F(CheckBoxPlusLookTest, ADisabledCaptionStaysGreyWhateverTheForeColour)
{
    auto* inner = m_box.findChild<QCheckBox*>("Check1");
    const QColor grey = inner->palette().color(QPalette::Disabled, QPalette::WindowText);
    m_box.setForeColor(0x0000FF);

    EXPECT_EQ(TextColour(), QColor(255, 0, 0));
    EXPECT_EQ(inner->palette().color(QPalette::Disabled, QPalette::WindowText), grey);
}

TEST(SystemColours, ButtonFaceAndTextAreThoseOfTheWindow)
{
    const QPalette palette = DarkPalette();

    EXPECT_EQ(ResolveColour(SystemColour::ButtonFace, palette), palette.color(QPalette::Window));
    EXPECT_EQ(ResolveColour(SystemColour::ButtonText, palette), palette.color(QPalette::WindowText));
    EXPECT_EQ(SystemColour::ButtonFace, -2147483633);
    EXPECT_EQ(SystemColour::ButtonText, -2147483630);
}

TEST(SystemColours, AnUnknownSystemColourIsTheFace)
{
    const QPalette palette = DarkPalette();
    EXPECT_EQ(ResolveColour(qint32(0x800000FFu), palette), palette.color(QPalette::Window));
}

TEST(CheckBoxPlusBag, AFreshControlStoresNothingBecauseAllIsAtItsDefault)
{
    CheckBoxPlus box;
    PropertyBag bag;
    box.WriteProperties(bag);
    EXPECT_TRUE(bag.Contents().isEmpty());
}

TEST(CheckBoxPlusBag, PropertiesSurviveTheBag)
{
    CheckBoxPlus box;
    box.setBackColor(0x123456);
    box.setForeColor(SystemColour::ButtonFace);
    box.setEnabled(false);
    box.setFont(QFont("DejaVu Sans", 17));
    box.setCycleMode(1);
    PropertyBag bag;
    box.WriteProperties(bag);
    CheckBoxPlus other;
    other.ReadProperties(bag);

    EXPECT_EQ(bag.Contents().keys(), (QStringList{"BackColor", "CycleMode", "Enabled", "Font", "ForeColor"}));
    EXPECT_EQ(bag.Contents().value("CycleMode").userType(), QMetaType::Int);
    EXPECT_EQ(other.BackColor(), 0x123456);
    EXPECT_EQ(other.ForeColor(), SystemColour::ButtonFace);
    EXPECT_FALSE(other.Enabled());
    EXPECT_EQ(other.Font().pointSize(), 17);
    EXPECT_EQ(other.CycleMode(), 1);
}

TEST(CheckBoxPlusBag, AnEmptyBagGivesTheDefaultsAndTheFontOfTheContainer)
{
    QWidget container;
    QFont large = container.font();
    large.setPointSize(23);
    container.setFont(large);
    CheckBoxPlus box(&container);
    box.setBackColor(1);
    box.setForeColor(2);
    box.setEnabled(false);
    box.setCycleMode(1);
    box.setFont(QFont("DejaVu Sans", 7));
    box.ReadProperties(PropertyBag());

    EXPECT_EQ(box.BackColor(), SystemColour::ButtonFace);
    EXPECT_EQ(box.ForeColor(), SystemColour::ButtonText);
    EXPECT_TRUE(box.Enabled());
    EXPECT_EQ(box.CycleMode(), 0);
    EXPECT_EQ(box.Font().pointSize(), 23);
}

TEST(CheckBoxPlusBag, ValueAndCaptionAreNotStored)
{
    CheckBoxPlus box;
    box.setValue(2);
    box.setCaption("Locked");
    PropertyBag bag;
    box.WriteProperties(bag);
    box.ReadProperties(bag);

    EXPECT_TRUE(bag.Contents().isEmpty());
    EXPECT_EQ(box.Value(), 2);
    EXPECT_EQ(box.Caption(), "Locked");
}

TEST(CheckBoxPlusBag, ABadBagRaisesAndChangesNothing)
{
    CheckBoxPlus box;
    box.setBackColor(7);
    const auto read = [&](const char* key, const QVariant& value) {
        return ErrorOf([&] { box.ReadProperties(PropertyBag({{key, value}})); });
    };
    EXPECT_EQ(read("BackColor", "blue"), typeMismatch);
    EXPECT_EQ(read("ForeColor", "9999999999"), overflow);
    EXPECT_EQ(read("Enabled", "perhaps"), typeMismatch);
    EXPECT_EQ(read("Font", 7), typeMismatch);
    EXPECT_EQ(read("CycleMode", 70000), overflow);
    EXPECT_EQ(box.BackColor(), 7);
}

TEST(PropertyBag, ReadsBackWhatASettingsFileMadeOfIt)
{
    const PropertyBag bag(
        {{"a", "true"},
         {"b", "false"},
         {"c", "-1"},
         {"d", "0"},
         {"e", "2.5"},
         {"f", QFont("DejaVu Sans", 11).toString()}});

    EXPECT_TRUE(bag.ReadBoolean("a", false));
    EXPECT_FALSE(bag.ReadBoolean("b", true));
    EXPECT_TRUE(bag.ReadBoolean("c", false));
    EXPECT_FALSE(bag.ReadBoolean("d", true));
    EXPECT_EQ(bag.ReadLong("e", 0), 2);
    EXPECT_EQ(bag.ReadFont("f", QFont()).pointSize(), 11);
}

TEST(PropertyBag, WritingTheDefaultRemovesTheKey)
{
    PropertyBag bag({{"CycleMode", 1}});
    bag.WriteProperty("CycleMode", 0, 0);
    EXPECT_FALSE(bag.Contains("CycleMode"));
    EXPECT_EQ(bag.ReadLong("CycleMode", 5), 5);
}

} // namespace

} // namespace Orvane::Testing
