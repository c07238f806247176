// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeMenuFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QIcon>
#include <QPixmap>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Has two commands, of which one is not possible.
class CommandClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    std::vector<qint32> ran;
    QWidget* form = nullptr;
    std::function<void()> act = [] {};
    QIcon icon{QPixmap(16, 16)};

private:
    std::vector<NodeCommand> INodeCommands_Commands(QWidget*) override
    {
        return {{"zoom", "Zoom to Layer", &icon}, {"table", "Open Table"}};
    }
    QString INodeCommands_WhyNot(const QString& id, const std::vector<qint32>&) override
    {
        return id == QLatin1String("table") ? QStringLiteral("There is no table.") : QString();
    }
    void INodeCommands_Run(QWidget* owner, const QString& id, const std::vector<qint32>& layerIDs) override
    {
        EXPECT_EQ(id, "zoom");
        form = owner;
        ran = layerIDs;
        act();
    }
};

class HostCommandsTest : public NodeMenuFixture
{
protected:
    void SetUp() override
    {
        UseClient(client);
        NodeMenuFixture::SetUp();
    }

    CommandClient client{host};
};

TEST_F(HostCommandsTest, RunForAllChosenLayersOnce)
{
    Choose({"Parcels", "Roads"});
    Pick("Zoom to Layer");
    EXPECT_THAT(client.ran, ElementsAre(1, 3));
    EXPECT_EQ(client.form, Form());
}

TEST_F(HostCommandsTest, RunForTheLayersOfAGroup)
{
    ClickTab(1);
    ClickGroup("Transport");
    Pick("Zoom to Layer");
    EXPECT_THAT(client.ran, ElementsAre(1, 2));
}

TEST_F(HostCommandsTest, StandLastBelowASeparatorWithTheirIcons)
{
    Choose({"Roads"});
    QMenu& menu = Menu();
    const QList<QAction*> entries = menu.actions();
    ASSERT_GT(entries.size(), 3);
    EXPECT_TRUE(entries.at(entries.size() - 3)->isSeparator());
    EXPECT_FALSE(entries.at(entries.size() - 2)->icon().isNull());
    EXPECT_EQ(entries.back()->text(), "Open Table");
}

TEST_F(HostCommandsTest, SayWhyTheyAreNotPossible)
{
    EXPECT_EQ(WhyNot("Zoom to Layer"), "Select a layer or a group first.");
    Choose({"Roads"});
    EXPECT_EQ(WhyNot("Open Table"), "There is no table.");
}

TEST_F(HostCommandsTest, ShowTheirErrorAndKeepEdits)
{
    Choose({"Roads"});
    Click("chkLocked");
    client.act = [] { throw RunTimeError(10001, "The table is gone.", {}); };
    MessageBoxRobot user{BoxKey::Enter};
    Pick("Zoom to Layer");
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "The table is gone.");
    EXPECT_TRUE(CanApply());
}

TEST_F(HostCommandsTest, MayEndTheEditor)
{
    Choose({"Roads"});
    client.act = [this] { EditorForm().UnloadWithoutApply(); };
    Pick("Zoom to Layer");
    EXPECT_THAT(client.ran, ElementsAre(1));
}

} // namespace

} // namespace Orvane::Testing
