// SPDX-License-Identifier: MIT
// The samples of line and fill in the rows of the lists.
#include "component/dialog/rows/LayerSamples.h"

#include "component/dialog/rows/SampledIcon.h"
#include "component/dialog/trees/LayerTreesLoadFixture.h"
#include "hosts/FailingClient.h"
#include "support/MenuByKeys.h"

#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QtTest>

namespace Orvane {

namespace {

/// Rails are filled with red, in a blue line.
class LayerSamplesTest : public LayerTreesLoadTest
{
protected:
    LayerSamplesTest() { Draw(12, 0x0000FF, 0xFF0000); }

    void Draw(qint32 layerID, qint32 fill, qint32 line)
    {
        host.SetLayerColumn(layerID, "Color", Value(line));
        host.SetLayerColumn(layerID, "FillForeColor", Value(fill));
        host.SetLayerColumn(layerID, "FillBackColor", Value(qint32(0xFFFFFF)));
        host.SetLayerColumn(layerID, "FillStyle", Value(qint32(0)));
        host.SetLayerColumn(layerID, "OutlineStyle", Value(qint32(0)));
        host.SetLayerColumn(layerID, "LineThickness", Value(0.0));
    }

    /// Until the rows are painted, their samples read and painted.
    void SettlePaint(QTreeView& view)
    {
        for (int round = 0; round < 4; ++round) {
            view.viewport()->repaint();
            Settle();
        }
    }

    int Count(QTreeView& view, const QString& text, const QColor& colour, const QString& group = {})
    {
        const QRect row = view.visualRect(Node(view, text, group));
        const QImage image = view.viewport()->grab(row).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == colour ? 1 : 0;
        }
        return count;
    }

    int CallsTo(const QString& member) { return int(host.Log().CallsTo(member).size()); }

    void ToggleInMenu(QTreeView& view)
    {
        QMenu* menu = Testing::OpenMenuByKey(view);
        ASSERT_TRUE(menu);
        QAction* last = menu->actions().last();
        EXPECT_EQ(last->isChecked(), trees.ShowsSamples());
        menu->setActiveAction(last);
        QTest::keyClick(menu, Qt::Key_Return);
        Settle();
    }
};

} // namespace

TEST_F(LayerSamplesTest, NothingIsReadUntilTheUserAsksForThem)
{
    Open(List::Layers);
    SettlePaint(layers);
    EXPECT_TRUE(host.Log().Trace().isEmpty()) << qPrintable(host.Log().Trace().join('\n'));
    EXPECT_EQ(Count(layers, "Rails", Qt::red), 0);
}

TEST_F(LayerSamplesTest, TheMenuSwitchesThemInBothLists)
{
    Open(List::Layers);
    ToggleInMenu(layers);
    SettlePaint(layers);
    EXPECT_GT(Count(layers, "Rails", Qt::red), 20);
    EXPECT_GT(Count(layers, "Rails", Qt::blue), 10);
    groups.expandAll();
    SettlePaint(groups);
    EXPECT_GT(Count(groups, "Rails", Qt::red, "Transport"), 20);
    EXPECT_EQ(Count(groups, "Transport", Qt::red), 0);
    ToggleInMenu(layers);
    SettlePaint(layers);
    EXPECT_EQ(Count(layers, "Rails", Qt::red), 0);
}

TEST_F(LayerSamplesTest, OfRowsInSightAreReadOnceAndInOneTransaction)
{
    AddManyLayers(2000);
    Open(List::Layers);
    trees.ShowSamples(true);
    SettlePaint(layers);
    const int rows = layers.viewport()->height() / layers.visualRect(layers.model()->index(0, 0)).height();
    const int read = CallsTo("OpenRecordset");
    EXPECT_GT(read, 2);
    EXPECT_LE(read, 2 * rows);
    EXPECT_EQ(CallsTo("BeginTrans"), 1);
    SettlePaint(layers);
    EXPECT_EQ(CallsTo("OpenRecordset"), read);
}

TEST_F(LayerSamplesTest, AreReadAgainWhenTheyExpire)
{
    Open(List::Layers);
    trees.ShowSamples(true);
    SettlePaint(layers);
    Draw(12, 0x00FF00, 0xFF0000);
    SettlePaint(layers);
    EXPECT_GT(Count(layers, "Rails", Qt::red), 20);
    trees.ExpireSamples();
    SettlePaint(layers);
    EXPECT_EQ(Count(layers, "Rails", Qt::red), 0);
    EXPECT_GT(Count(layers, "Rails", QColor(0, 255, 0)), 20);
}

TEST_F(LayerSamplesTest, ExpireWhenAListOrALayerIsReadAgain)
{
    const auto rails = QStringLiteral("Rails");
    const std::vector<std::function<QString()>> changes{
        [&] { return trees.LoadLayers(), rails; },
        [&] { return trees.RefreshLayers({12}), rails; },
        [&] { return trees.SetLayerImage(12, 2), rails; },
        [&] { return trees.ShowLayer(12), rails; },
        [&] { return trees.SetLayerName(12, "Rods"), QStringLiteral("Rods"); },
    };
    QString name = rails;
    int number = 0;
    Open(List::Layers);
    trees.ShowSamples(true);
    for (const auto& change : changes) {
        Draw(12, 0x0000FF, 0xFF0000);
        trees.ExpireSamples();
        SettlePaint(layers);
        EXPECT_GT(Count(layers, name, Qt::red), 20);
        Draw(12, 0x00FF00, 0xFF0000);
        name = change();
        SettlePaint(layers);
        EXPECT_GT(Count(layers, name, QColor(0, 255, 0)), 20) << number;
        ++number;
    }
}

TEST_F(LayerSamplesTest, AFindReadsOnlyTheRowsThatItBringsIntoSight)
{
    Open(List::Layers);
    trees.ShowSamples(true);
    SettlePaint(layers);
    host.ClearLog();
    trees.Find(List::Layers, "ra");
    SettlePaint(layers);
    EXPECT_TRUE(host.Log().Trace().isEmpty()) << qPrintable(host.Log().Trace().join('\n'));
    EXPECT_GT(Count(layers, "Rails", Qt::red), 20);
}

TEST_F(LayerSamplesTest, AValueThatCannotBeReadShowsNothingAndNoError)
{
    host.SetLayerColumn(12, "FillStyle", Value(QString("striped")));
    Open(List::Layers);
    trees.ShowSamples(true);
    SettlePaint(layers);
    EXPECT_EQ(Count(layers, "Rails", Qt::red), 0);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(LayerSamplesTest, AHostThatFailsIsNotAskedAgainAndAgain)
{
    Testing::FailingClient failing(host, {"nothing", 1, RunTimeError(7, "never")});
    UseClient(failing);
    Open(List::Layers);
    failing.Plan({"BeginTrans", 1, RunTimeError(ErrorNumber::DatabaseLocked, "locked")});
    trees.ShowSamples(true);
    SettlePaint(layers);
    EXPECT_TRUE(failing.HasFailed());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(Count(layers, "Rails", Qt::red), 0);
    host.ClearLog();
    SettlePaint(layers);
    EXPECT_TRUE(host.Log().Trace().isEmpty()) << qPrintable(host.Log().Trace().join('\n'));
}

TEST_F(LayerSamplesTest, HiddenListsAskNothing)
{
    Open(List::Layers);
    trees.ShowSamples(true);
    layers.viewport()->repaint();
    window.hide();
    Settle();
    EXPECT_TRUE(host.Log().Trace().isEmpty()) << qPrintable(host.Log().Trace().join('\n'));
}

namespace {

QImage PaintedSample(const LayerSample& sample, qint32 listBack = 0xFFFFFF)
{
    QImage image(24, 16, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    QPainter painter(&image);
    PaintLayerSample(painter, image.rect(), sample, listBack);
    return image;
}

LayerSample Sample(qint32 line, qint32 fore, qint32 fillStyle, qint32 lineStyle, double thickness)
{
    LayerSample sample;
    sample.colours = {line, fore, 0xFFFFFF};
    sample.fillStyle = fillStyle;
    sample.lineStyle = lineStyle;
    sample.thickness = thickness;
    return sample;
}

} // namespace

TEST(LayerSamplePainting, FramesTheFillWithALineThatLeavesRoomForIt)
{
    const QImage image = PaintedSample(Sample(0xFF0000, 0x0000FF, 0, 0, 90));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(3, 8), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(12, 8), QColor(Qt::red));
}

TEST(LayerSamplePainting, NoLineIsNoFrame)
{
    EXPECT_EQ(PaintedSample(Sample(0xFF0000, 0x0000FF, 0, 15, 0)).pixelColor(0, 0), QColor(Qt::red));
}

TEST(LayerSamplePainting, WhatCouldNotBeSeenGetsAFaintFrame)
{
    for (const qint32 back : {0xFFFFFF, 0x202020}) {
        const QImage image = PaintedSample(Sample(back, back, 0, 0, 0), back);
        EXPECT_NE(image.pixelColor(0, 0), image.pixelColor(12, 8));
    }
}

TEST(LayerSamplePainting, FollowsTheImageInTheDirectionOfReading)
{
    QPixmap black(16, 16);
    black.fill(Qt::black);
    const LayerSample sample = Sample(0xFF0000, 0x0000FF, 0, 15, 0);
    const QSize size = SizeWithSample({16, 16});
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const QImage image = WithSample(QIcon(black), &sample, 0xFFFFFF, direction).pixmap(size).toImage();
        const bool isLeft = direction == Qt::LeftToRight;
        EXPECT_EQ(image.pixelColor(isLeft ? 5 : size.width() - 6, 8), QColor(Qt::black));
        EXPECT_EQ(image.pixelColor(isLeft ? size.width() - 6 : 5, 8), QColor(Qt::red));
    }
}

} // namespace Orvane
