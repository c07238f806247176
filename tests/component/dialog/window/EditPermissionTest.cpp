// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

namespace Orvane::Testing {

namespace {

const QString Reason = QStringLiteral("You may only <b>look</b>.");

class ForbiddingClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    QString reason = Reason;

private:
    QString IEditPermission_WhyNotEdited() const override { return reason; }
};

class EditPermissionTest : public EditorFixture
{
protected:
    EditPermissionTest()
    {
        UseClient(client);
        AddTown();
    }

    ForbiddingClient client{host};
};

TEST_F(EditPermissionTest, SettingsOfAMapThatCannotBeChangedAreShownButDisabledWithTheReason)
{
    Open();
    ClickTab(2);
    ClickLayer("Roads");
    EXPECT_EQ(CheckState("chkVisible"), 1);
    EXPECT_FALSE(IsEnabled("chkVisible"));
    EXPECT_FALSE(IsEnabled("Normal"));
    EXPECT_FALSE(IsEnabled("cmdNewLayer"));
    EXPECT_FALSE(CanApply());
    EXPECT_TRUE(Find<QLabel>("lblWhyNotEdited").isVisible());
    EXPECT_EQ(TextOf("lblWhyNotEdited"), Reason);
    EXPECT_EQ(Find<QLabel>("lblWhyNotEdited").textFormat(), Qt::PlainText);
}

TEST_F(EditPermissionTest, ClicksOnDisabledSettingsChangeNothing)
{
    Open();
    ClickTab(2);
    ClickLayer("Roads");
    Click("chkVisible");
    EXPECT_FALSE(CanApply());
    EXPECT_FALSE(IsUnderlined("chkVisible"));
}

TEST_F(EditPermissionTest, OtherLayersCanStillBeLookedAt)
{
    Open();
    ClickTab(2);
    ClickLayer("Roads");
    ClickLayer("Parcels");
    EXPECT_FALSE(IsEnabled("chkVisible"));
    EXPECT_TRUE(IsEnabled("tvLayers2"));
}

TEST_F(EditPermissionTest, GroupsCanBeLookedIntoAndNothingIsStored)
{
    Open();
    ClickTab(1);
    auto& tree = Find<QTreeView>("tvLayers1");
    const QModelIndex transport = tree.model()->index(0, 0);
    const bool wasExpanded = tree.isExpanded(transport);
    tree.setCurrentIndex(transport);
    QTest::keyClick(&tree, wasExpanded ? Qt::Key_Left : Qt::Key_Right);
    EXPECT_NE(tree.isExpanded(transport), wasExpanded);
    EXPECT_EQ(host.Log().CallsTo("Update").size(), 0);
}

TEST_F(EditPermissionTest, NamesOfLayersCannotBeEdited)
{
    Open();
    ClickTab(2);
    ClickLayer("Roads");
    auto& tree = Find<QTreeView>("tvLayers2");
    QTest::keyClick(&tree, Qt::Key_F2);
    EXPECT_FALSE(tree.findChild<QLineEdit*>("txtNodeName"));
}

TEST_F(EditPermissionTest, SettingsAreEnabledWhenTheHostAllowsItAgain)
{
    Open();
    ClickTab(2);
    ClickLayer("Roads");
    client.reason.clear();
    ClickLayer("Parcels");
    EXPECT_TRUE(IsEnabled("chkVisible"));
    EXPECT_TRUE(IsEnabled("Normal"));
    EXPECT_FALSE(Find<QLabel>("lblWhyNotEdited").isVisible());
}

TEST_F(EditPermissionTest, TheListsKeepTheirShareOfTheHeight)
{
    Open();
    ClickTab(2);
    ClickLayer("Roads");
    EXPECT_FALSE(Find<QWidget>("picLayerStyle").hasHeightForWidth());
    const auto& why = Find<QLabel>("lblWhyNotEdited");
    EXPECT_GE(why.height(), why.heightForWidth(why.width()));
}

} // namespace

} // namespace Orvane::Testing
