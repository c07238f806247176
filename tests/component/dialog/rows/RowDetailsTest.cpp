// SPDX-License-Identifier: MIT
// What the tool tips of rows tell, and how rows of hidden layers look.
#include "component/dialog/trees/LayerTreesFixture.h"
#include "hosts/FailingClient.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QHelpEvent>
#include <QToolTip>
#include <QtTest>

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace Orvane {

namespace {

class ClientWithSources : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    QString source;
    qint32 askedFor = 0;
    bool raises = false;

private:
    QString ILayerSource_Source(qint32 layerID) override
    {
        askedFor = layerID;
        if (raises)
            throw RunTimeError(7, "locked");
        return source;
    }
};

class RowDetailsTest : public Testing::LayerTreesTest
{
protected:
    /// As for a pointer that rests on the row.
    std::string TipOf(QTreeView& view, const QString& text, const QString& group = {})
    {
        const QPoint place = view.visualRect(Node(view, text, group)).center();
        QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
        return QToolTip::text().toStdString();
    }

    void TearDown() override
    {
        QToolTip::hideText();
        Settle();
    }

    /// How far the row's text is from the background: 0 to 255.
    int ContrastOf(const QString& text, bool isDark)
    {
        QRect row = layers.visualRect(Node(layers, text));
        row.setLeft(row.left() + 2 * row.height());
        const QImage image = layers.viewport()->grab(row).toImage();
        int farthest = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const int grey = qGray(image.pixel(x, y));
                farthest = std::max(farthest, isDark ? grey : 255 - grey);
            }
        }
        return farthest;
    }
};

} // namespace

TEST_F(RowDetailsTest, OfALayerAreItsCodeItsGroupsAndItsScales)
{
    host.SetLayerColumn(11, "Code", Value(qint32(47)));
    host.SetLayerColumn(11, "MinVisScale", Value(20000.0));
    Open(List::Layers);
    const std::string tip = TipOf(layers, "Roads");
    EXPECT_THAT(tip, HasSubstr("<qt>Roads<br>Normal<br>Code: 47<br>Groups: Transport, Water<br>"));
    EXPECT_THAT(tip, HasSubstr("<br>Minimum scale: 1:"));
    EXPECT_THAT(tip, Not(HasSubstr("Maximum scale")));
    EXPECT_THAT(tip, HasSubstr("</qt>"));
}

TEST_F(RowDetailsTest, AreReadWhenTheTipIsAskedForAndInOneTransaction)
{
    Open(List::Layers);
    EXPECT_TRUE(host.Log().Trace().isEmpty());
    TipOf(layers, "Roads");
    EXPECT_EQ(host.Log().CallsTo("BeginTrans").size(), 1);
    EXPECT_EQ(host.Log().CallsTo("Update").size(), 0);
}

TEST_F(RowDetailsTest, TellWhyALayerIsNotDrawn)
{
    host.AddLayer({.id = 60, .name = "Zones (Obscured)"});
    Open(List::Layers);
    const std::string tip = TipOf(layers, "(OBS)Zones ");
    EXPECT_THAT(tip, HasSubstr("(OBS): obscured"));
    EXPECT_THAT(tip, HasSubstr("<br>Code: "));
    EXPECT_THAT(tip, Not(HasSubstr("Groups:")));
}

TEST_F(RowDetailsTest, TellWhereTheDataOfALayerAre)
{
    ClientWithSources client(host);
    UseClient(client);
    Open(List::Layers);
    client.source = QStringLiteral("<maps>/town.gpkg");
    EXPECT_THAT(TipOf(layers, "Roads"), HasSubstr("<br>Source: &lt;maps&gt;/town.gpkg</qt>"));
    EXPECT_EQ(client.askedFor, 11);
    client.source.clear();
    EXPECT_THAT(TipOf(layers, "Roads"), Not(HasSubstr("Source")));
}

TEST_F(RowDetailsTest, AreLeftOutIfTheHostCannotTellTheSource)
{
    ClientWithSources client(host);
    UseClient(client);
    Open(List::Layers);
    client.source = QStringLiteral("town.gpkg");
    client.raises = true;
    EXPECT_EQ(TipOf(layers, "Roads"), "<qt>Roads<br>Normal</qt>");
    EXPECT_EQ(host.Log().CallsTo("Rollback").size(), 1);
    client.raises = false;
    EXPECT_THAT(TipOf(layers, "Roads"), HasSubstr("<br>Source: town.gpkg</qt>"));
}

TEST_F(RowDetailsTest, KeepBothEndsOfALongSource)
{
    ClientWithSources client(host);
    UseClient(client);
    Open(List::Layers);
    client.source = QStringLiteral("/first/") + QString(500, QLatin1Char('x')) + QStringLiteral("/town.gpkg");
    const std::string tip = TipOf(layers, "Roads");
    EXPECT_THAT(tip, HasSubstr("<br>Source: /first/xxx"));
    EXPECT_THAT(tip, HasSubstr("xxx/town.gpkg</qt>"));
    EXPECT_LT(tip.size(), 300);
}

TEST_F(RowDetailsTest, OfAGroupAreItsNameAndMode)
{
    Open(List::Groups);
    EXPECT_EQ(TipOf(groups, "Water"), "<qt>Water<br>Normal</qt>");
}

TEST_F(RowDetailsTest, ManyGroupsAndNamesLikeMarkupFitIntoTheTip)
{
    for (qint32 id = 10; id < 20; ++id)
        host.AddGroup({.id = id, .name = QStringLiteral("<b>%1").arg(id), .ordering = id, .members = {31}});
    Open(List::Layers);
    const std::string tip = TipOf(layers, "Base");
    EXPECT_THAT(tip, HasSubstr("&lt;b&gt;10, &lt;b&gt;11"));
    EXPECT_THAT(tip, HasSubstr("&lt;b&gt;14, …"));
    EXPECT_THAT(tip, Not(HasSubstr("15")));
}

TEST_F(RowDetailsTest, ThatCannotBeReadLeaveTheTipWithoutAnError)
{
    Testing::FailingClient failing(host, {"nothing", 1, RunTimeError(7, "never")});
    UseClient(failing);
    Open(List::Layers);
    failing.Plan({"OpenRecordset", 1, RunTimeError(7, "locked")});
    EXPECT_EQ(TipOf(layers, "Roads"), "<qt>Roads<br>Normal</qt>");
    EXPECT_TRUE(failing.HasFailed());
    Settle();
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(RowDetailsTest, ThePointerBelowTheRowsShowsNoTip)
{
    Open(List::Layers);
    TipOf(layers, "Roads");
    const QPoint place(20, layers.viewport()->height() - 3);
    QHelpEvent event(QEvent::ToolTip, place, layers.viewport()->mapToGlobal(place));
    QApplication::sendEvent(layers.viewport(), &event);
    EXPECT_EQ(host.Log().CallsTo("BeginTrans").size(), 1);
}

TEST_F(RowDetailsTest, HiddenLayersAreFadedButReadableInLightAndDarkPalettes)
{
    Open(List::Layers);
    trees.SetLayerImage(11, 4);
    for (const bool isDark : {false, true}) {
        QPalette palette;
        palette.setColor(QPalette::Base, isDark ? Qt::black : Qt::white);
        palette.setColor(QPalette::Text, isDark ? Qt::white : Qt::black);
        layers.setPalette(palette);
        EXPECT_GT(ContrastOf("Rails", isDark), 200);
        EXPECT_LT(ContrastOf("Roads", isDark), 190);
        EXPECT_GT(ContrastOf("Roads", isDark), 110);
    }
}

} // namespace Orvane
