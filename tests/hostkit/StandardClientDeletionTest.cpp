// SPDX-License-Identifier: MIT
#include "hostkit/StandardClientFixture.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/undo/UndoHistory.h"

#include <QAbstractButton>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

class ClientThatDeletes : public StandardClientFixture
{
};

TEST_F(ClientThatDeletes, DeletesALayerAfterOneQuestionThatNamesIt)
{
    AddLayer(1, QStringLiteral("<b>Roads</b>"));
    QSignalSpy deleted(&Signals(), &HostNotifications::LayerDeleted);
    WhenModal([](QWidget& box) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().contains(QStringLiteral("<b>Roads</b>")));
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
        Press(box, QMessageBox::Yes);
    });
    Host().DeleteLayer(1);
    EXPECT_EQ(deleted.count(), 1);
    EXPECT_TRUE(Host().LayerDisplayName(1).isEmpty());
}

TEST_F(ClientThatDeletes, DeletesSeveralLayersAfterOneQuestionAsOneStep)
{
    AddLayers(4);
    Set(4, "SystemLayer", true);
    QSignalSpy deleted(&Signals(), &HostNotifications::LayerDeleted);
    WhenModal([](QWidget& box) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), QStringLiteral("Delete 3 layers?"));
        Press(box, QMessageBox::Yes);
    });
    ManyLayers().DeleteLayers({1, 2, 3, 4, 99});
    EXPECT_EQ(deleted.count(), 3);
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 1);
    EXPECT_EQ(m_client.History().UndoText(), QStringLiteral("Undo Delete 3 Layers"));
    m_client.History().Undo();
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 4);
}

TEST_F(ClientThatDeletes, KeepsSeveralLayersWhenTheUserSaysNo)
{
    AddLayers(2);
    WhenModal([](QWidget& box) { Press(box, QMessageBox::No); });
    ManyLayers().DeleteLayers({1, 2});
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 2);
}

TEST_F(ClientThatDeletes, NamesTheLayerThatIsLeftOfSeveral)
{
    AddLayers(2);
    Set(2, "SystemLayer", true);
    WhenModal([](QWidget& box) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().contains(QStringLiteral("\"Layer 1\"")));
        Press(box, QMessageBox::Yes);
    });
    ManyLayers().DeleteLayers({1, 2});
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 1);
}

TEST_F(ClientThatDeletes, KeepsTheLayerWhenTheUserSaysNo)
{
    AddLayers(1);
    QSignalSpy deleted(&Signals(), &HostNotifications::LayerDeleted);
    WhenModal([](QWidget& box) { Press(box, QMessageBox::No); });
    Host().DeleteLayer(1);
    EXPECT_EQ(deleted.count(), 0);
    EXPECT_EQ(Host().LayerDisplayName(1), QStringLiteral("Layer 1"));
}

TEST_F(ClientThatDeletes, ReturnAndEscapeKeepTheLayer)
{
    AddLayers(1);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        WhenModal([key](QWidget& box) {
            QWidget* focus = box.focusWidget() ? box.focusWidget() : &box;
            QTest::keyClick(focus, key);
        });
        Host().DeleteLayer(1);
        EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 1);
    }
}

TEST_F(ClientThatDeletes, AsksNothingForASystemLayerOrAMissingOne)
{
    AddLayers(1);
    Set(1, "SystemLayer", true);
    Host().DeleteLayer(1);
    Host().DeleteLayer(99);
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 1);
}

TEST_F(ClientThatDeletes, ShortensAVeryLongNameInItsQuestion)
{
    AddLayer(1, QString(10000, u'x'));
    WhenModal([](QWidget& box) {
        EXPECT_LT(dynamic_cast<QMessageBox&>(box).text().size(), 200);
        Press(box, QMessageBox::No);
    });
    Host().DeleteLayer(1);
}

TEST_F(ClientThatDeletes, ADeletedLayerIsNotRedrawn)
{
    AddLayers(1);
    QSignalSpy changed(&Signals(), &HostNotifications::LayersChanged);
    Host().LayerChanged(1);
    WhenModal([](QWidget& box) { Press(box, QMessageBox::Yes); });
    Host().DeleteLayer(1);
    Host().RedrawMap();
    EXPECT_EQ(changed.count(), 0);
}

} // namespace
} // namespace Orvane::Testing
