// SPDX-License-Identifier: MIT
#include "shell/window/EmptyMapHint.h"

#include "mapkit/canvas/MapCanvas.h"

#include <QImage>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class EmptyMapHintTest : public testing::Test
{
protected:
    EmptyMapHintTest() { m_canvas.resize(400, 200); }

    bool IsBlank()
    {
        const QImage image = m_canvas.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QImage white(image.size(), QImage::Format_RGB32);
        white.fill(Qt::white);
        return image == white;
    }

    MapCanvas m_canvas;
};

} // namespace

TEST_F(EmptyMapHintTest, IsSeenOnAMapWithoutLayers)
{
    const EmptyMapHint hint(m_canvas);
    EXPECT_FALSE(IsBlank());
}

TEST_F(EmptyMapHintTest, IsGoneAsSoonAsThereIsALayer)
{
    const EmptyMapHint hint(m_canvas);
    m_canvas.SetLayers({MapLayer{}}, 1);
    EXPECT_TRUE(IsBlank());
}

TEST_F(EmptyMapHintTest, LeavesTheCanvasWithItsEnd)
{
    {
        const EmptyMapHint hint(m_canvas);
    }
    EXPECT_TRUE(IsBlank());
}

} // namespace Orvane
