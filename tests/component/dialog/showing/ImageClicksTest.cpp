// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/NodeMenuFixture.h"

#include <QApplication>
#include <QLineEdit>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

class ImageClicksTest : public NodeMenuFixture
{
protected:
    QPoint Image(const QString& text)
    {
        const QRect row = Tree().visualRect(Node(text));
        return {row.left() + row.height() / 2, row.center().y()};
    }

    void ClickImage(const QString& text, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, modifiers, Image(text));
        QCoreApplication::processEvents();
    }

    int Selected() { return int(Tree().selectionModel()->selectedIndexes().size()); }
};

TEST_F(ImageClicksTest, HideALayerAndShowItAgain)
{
    ClickImage("Roads");
    EXPECT_EQ(Mode(1), 2);
    EXPECT_EQ(PressedModes(), 4);
    ClickImage("Roads");
    EXPECT_EQ(Mode(1), 0);
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
}

TEST_F(ImageClicksTest, BesideTheImageOnlyChoose)
{
    Choose({"Roads"});
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
    EXPECT_EQ(Tree().currentIndex(), Node("Roads"));
}

TEST_F(ImageClicksTest, ChooseTheNodeToo)
{
    Choose({"Parcels"});
    ClickImage("Roads");
    EXPECT_EQ(Tree().currentIndex(), Node("Roads"));
    EXPECT_EQ(Selected(), 1);
}

TEST_F(ImageClicksTest, HideAllLayersOfAGroup)
{
    ClickTab(1);
    ClickImage("Transport");
    EXPECT_THAT(Modes(), ElementsAre(2, 2, 0, 0));
}

TEST_F(ImageClicksTest, OfOneOfSeveralChosenNodesHideAllOfThem)
{
    Choose({"Roads", "Parcels"});
    host.ClearLog();
    ClickImage("Roads");
    EXPECT_THAT(Modes(), ElementsAre(2, 1, 2, 0));
    EXPECT_EQ(Selected(), 2);
    EXPECT_EQ(Calls("RedrawMap"), 1);
}

TEST_F(ImageClicksTest, CountOnceWhenDoubled)
{
    ClickTab(1);
    for (const QString text : {"Rivers", "Transport"}) {
        host.ClearLog();
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, Image(text));
        QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, Image(text));
        QCoreApplication::processEvents();
        EXPECT_EQ(Calls("RedrawMap"), 1) << text.toStdString();
    }
}

TEST_F(ImageClicksTest, DoNeitherExpandNorRenameWhenDoubled)
{
    ClickTab(1);
    for (const QString text : {"Rivers", "Transport"}) {
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, Image(text));
        QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, Image(text));
        QCoreApplication::processEvents();
        EXPECT_TRUE(Tree().isExpanded(Node("Transport")));
        EXPECT_FALSE(Tree().findChild<QLineEdit*>("txtNodeName"));
    }
}

TEST_F(ImageClicksTest, DoNotCountWhenDrawnOverNodesOrWithAKey)
{
    const auto view = Tree().viewport();
    QTest::mousePress(view, Qt::LeftButton, {}, Image("Roads"));
    const QPoint away = Image("Parcels");
    QMouseEvent move(
        QEvent::MouseMove, away, view->mapToGlobal(away), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view, &move);
    QTest::mouseRelease(view, Qt::LeftButton, {}, Image("Roads"));
    QCoreApplication::processEvents();
    ClickImage("Parcels", Qt::ControlModifier);
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
}

TEST_F(ImageClicksTest, OfAnotherNodeKeepTheEditsAndTheirNode)
{
    Choose({"Roads"});
    Click("chkLocked");
    MessageBoxRobot nobody{};
    ClickImage("Parcels");
    EXPECT_EQ(Mode(3), 2);
    EXPECT_EQ(Tree().currentIndex(), Node("Roads"));
    EXPECT_TRUE(CanApply());
}

TEST_F(ImageClicksTest, OfAnotherNodeKeepAQuickModeThatIsNotApplied)
{
    Choose({"Roads"});
    Click("Backdrop");
    MessageBoxRobot nobody{};
    ClickImage("Parcels");
    EXPECT_EQ(Mode(3), 2);
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(PressedModes(), 2);
    Click("cmdApply");
    EXPECT_EQ(Mode(1), 1);
}

TEST_F(ImageClicksTest, CountOnTheWholeImageInALargeFont)
{
    QFont font = Tree().font();
    font.setPixelSize(48);
    Tree().setFont(font);
    Tree().doItemsLayout();
    const QRect row = Tree().visualRect(Node("Parcels"));
    const QPoint right(row.left() + QFontMetrics(font).height() - 2, row.center().y());
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, right);
    QCoreApplication::processEvents();
    EXPECT_EQ(Mode(3), 2);
}

class ImagesWithoutQuickModes : public ImageClicksTest
{
protected:
    void SetUp() override
    {
        host.quickModesAllowed = false;
        ImageClicksTest::SetUp();
    }
};

TEST_F(ImagesWithoutQuickModes, OnlyChoose)
{
    Choose({"Roads", "Parcels"});
    ClickImage("Roads");
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
    EXPECT_EQ(Selected(), 1);
}

} // namespace

} // namespace Orvane::Testing
