// SPDX-License-Identifier: MIT
#include "shell/tools/HoverHighlight.h"

#include "shell/tools/ToolCanvas.h"

#include <QApplication>
#include <QSignalSpy>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class HoverHighlightTest : public ToolCanvasTest
{
protected:
    HoverHighlightTest()
    {
        m_layer = NamedLayer(1, "Squares", FeatureBuilder().Square(10, 10, 30).Square(60, 60, 30).Done());
        Show({m_layer});
        QObject::connect(&m_hover, &HoverHighlight::StatusChanged, &m_canvas, [this](const QString& text) {
            m_status = text;
        });
        m_hover.SetOn(true);
    }

    MapLayer m_layer;
    HoverHighlight m_hover{m_canvas};
};

} // namespace

TEST_F(HoverHighlightTest, MarksTheFeatureUnderThePointerAndNamesItsLayer)
{
    Hover(70, 70);
    EXPECT_THAT(m_hover.Keys(), ElementsAre(FeatureKey{1, 2}));
    EXPECT_EQ(m_status, "Squares");
    Hover(20, 20);
    EXPECT_THAT(m_hover.Keys(), ElementsAre(FeatureKey{1, 1}));
    Hover(50, 50);
    EXPECT_THAT(m_hover.Keys(), IsEmpty());
    EXPECT_EQ(m_status, "No layer here.");
}

TEST_F(HoverHighlightTest, PassesOverALayerThatIsNotHitable)
{
    m_layer.flags.hitable = false;
    Show({m_layer});
    Hover(20, 20);
    EXPECT_THAT(m_hover.Keys(), IsEmpty());
    EXPECT_EQ(m_status, "Squares is here but not hitable.");
}

TEST_F(HoverHighlightTest, MarksALayerThatIsNeitherSelectableNorEnquirable)
{
    m_layer.flags.selectable = false;
    m_layer.flags.enquirable = false;
    Show({m_layer});
    Hover(20, 20);
    EXPECT_THAT(m_hover.Keys(), ElementsAre(FeatureKey{1, 1}));
}

TEST_F(HoverHighlightTest, MarksNothingWhileItIsOff)
{
    Hover(20, 20);
    m_hover.SetOn(false);
    EXPECT_THAT(m_hover.Keys(), IsEmpty());
    Hover(70, 70);
    EXPECT_THAT(m_hover.Keys(), IsEmpty());
    EXPECT_EQ(m_status, "");
}

TEST_F(HoverHighlightTest, ForgetsWhenThePointerLeavesOrTheLayersChange)
{
    Hover(20, 20);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&m_canvas, &leave);
    EXPECT_THAT(m_hover.Keys(), IsEmpty());
    EXPECT_EQ(m_status, "");
    Hover(21, 21);
    m_layer.visible = false;
    Show({m_layer});
    EXPECT_THAT(m_hover.Keys(), IsEmpty());
}

TEST_F(HoverHighlightTest, TellsEachThingOnce)
{
    QSignalSpy told(&m_hover, &HoverHighlight::StatusChanged);
    Hover(20, 20);
    Hover(22, 22);
    EXPECT_EQ(told.size(), 1);
}

} // namespace Orvane
