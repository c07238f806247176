// SPDX-License-Identifier: MIT
#include "component/common/Component.h"
#include "component/controls/DrawPrioritiesTranslator.h"
#include "component/controls/VisibleScalesTranslator.h"
#include "component/controls/frmDropSliderFixture.h"
#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/IMapScale.h>

#include <limits>

namespace Orvane::Testing {

namespace {

class MapHost : public MemoryHost, public IMapScale
{
public:
    double scale = 25400;

private:
    double IMapScale_CurrentScale() const override { return scale; }
};

/// A slider for a scale, index i is 1:1000 * i, in a host with a map.
class MapScaleTest : public frmDropSliderTest
{
protected:
    MapScaleTest()
    {
        Use(m_host);
        m_translator = &m_scales;
    }
    ~MapScaleTest() override { Component::Get().SetHost(nullptr, nullptr); }

    static void Use(IStyleEditorClient& host) { Component::Get().SetHost(&host, host.GetShellServices()); }
    QPushButton* MapScale() { return Button("cmdMapNumber"); }

    MapHost m_host;
    VisibleScalesTranslator m_scales;
};

TEST_F(MapScaleTest, AClickTakesTheScaleOfTheMap)
{
    EXPECT_TRUE(Popup([this] {
        EXPECT_TRUE(MapScale()->isVisible());
        EXPECT_EQ(MapScale()->text(), "&Map's Scale (1:25400)");
        QTest::mouseClick(MapScale(), Qt::LeftButton);
        EXPECT_EQ(Label()->text(), "1:25000");
        EXPECT_EQ(m_form.focusWidget(), Slider());
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(25));
}

TEST_F(MapScaleTest, TheKeyOfItsLetterTakesItToo)
{
    EXPECT_TRUE(Popup([this] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_form));
        QTest::keyClick(m_form.focusWidget(), Qt::Key_M, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return Label()->text() == "1:25000"; }));
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(25));
}

TEST_F(MapScaleTest, EnterDirectlyAfterItsKeyTakesIt)
{
    EXPECT_TRUE(Popup([this] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_form));
        QTest::keyClick(m_form.focusWidget(), Qt::Key_M, Qt::AltModifier);
        PressKey(Qt::Key_Return);
        EXPECT_FALSE(m_form.isVisible());
    }));
    EXPECT_THAT(m_value, IsValue(25));
}

TEST_F(MapScaleTest, EscapeDirectlyAfterItsKeyLeavesTheValue)
{
    EXPECT_FALSE(Popup([this] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_form));
        QTest::keyClick(m_form.focusWidget(), Qt::Key_M, Qt::AltModifier);
        PressKey(Qt::Key_Escape);
    }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !MapScale()->isDown(); }));
    EXPECT_EQ(Slider()->value(), 7);
}

TEST_F(MapScaleTest, BothLimitsLeaveTheLayerDrawnAtTheMapsScale)
{
    m_host.scale = 25600;
    Popup([this] {
        QTest::mouseClick(MapScale(), Qt::LeftButton);
        EXPECT_EQ(Label()->text(), "1:25000");
    });
    m_minimum = 1;
    m_maximum = 256;
    m_host.scale = 25400;
    Popup([this] {
        QTest::mouseClick(MapScale(), Qt::LeftButton);
        EXPECT_EQ(Label()->text(), "1:26000");
    });
    m_host.scale = 25000;
    Popup([this] {
        QTest::mouseClick(MapScale(), Qt::LeftButton);
        EXPECT_EQ(Label()->text(), "1:25000");
    });
}

TEST_F(MapScaleTest, AScaleOutsideTheTableIsShownButNotOffered)
{
    m_host.scale = 1e6;
    Popup([this] {
        EXPECT_EQ(MapScale()->text(), "&Map's Scale (1:1000000)");
        EXPECT_FALSE(MapScale()->isEnabled());
    });
}

TEST_F(MapScaleTest, NothingIsOfferedWithoutAMap)
{
    for (const double none : {0.0, -5.0, std::numeric_limits<double>::infinity(), std::nan("")}) {
        m_host.scale = none;
        Popup([this] { EXPECT_FALSE(MapScale()->isVisible()); });
    }
}

TEST_F(MapScaleTest, NothingIsOfferedByAHostThatDoesNotKnowIt)
{
    MemoryHost other;
    Use(other);
    Popup([this] { EXPECT_FALSE(MapScale()->isVisible()); });
}

TEST_F(MapScaleTest, NothingIsOfferedForAPriority)
{
    const DrawPrioritiesTranslator priorities;
    m_translator = &priorities;
    Popup([this] { EXPECT_FALSE(MapScale()->isVisible()); });
}

TEST_F(MapScaleTest, ComesLastInTheOrderOfTheFocus)
{
    Popup([this] {
        EXPECT_EQ(Button("cmdCancel")->nextInFocusChain(), MapScale());
        EXPECT_EQ(Slider()->nextInFocusChain(), Various());
    });
}

} // namespace

} // namespace Orvane::Testing
