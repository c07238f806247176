// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeMenuFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QLineEdit>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Layers = std::vector<qint32>;

/// Notes each choice that it learns of.
class ChoiceClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    std::vector<Layers> choices;
    QWidget* form = nullptr;
    std::function<void()> act = [] {};

private:
    void IChoiceWatch_LayersChosen(QWidget* owner, const Layers& layerIDs) override
    {
        form = owner;
        choices.push_back(layerIDs);
        act();
    }
};

class ChoiceTellerTest : public NodeMenuFixture
{
protected:
    void SetUp() override
    {
        UseClient(client);
        NodeMenuFixture::SetUp();
        QCoreApplication::processEvents();
    }

    void ChooseAndWait(const QStringList& texts)
    {
        Choose(texts);
        QCoreApplication::processEvents();
    }

    ChoiceClient client{host};
};

TEST_F(ChoiceTellerTest, TellsNothingBeforeALayerIsChosen)
{
    EXPECT_THAT(client.choices, IsEmpty());
}

TEST_F(ChoiceTellerTest, TellsTheChosenLayers)
{
    ChooseAndWait({"Parcels"});
    ChooseAndWait({"Parcels", "Roads"});
    ASSERT_FALSE(client.choices.empty());
    EXPECT_THAT(client.choices.front(), ElementsAre(3));
    EXPECT_THAT(client.choices.back(), ElementsAre(1, 3));
    EXPECT_EQ(client.form, Form());
}

TEST_F(ChoiceTellerTest, TellsTheLayersOfAGroup)
{
    ClickTab(1);
    ClickGroup("Transport");
    QCoreApplication::processEvents();
    EXPECT_THAT(client.choices.back(), ElementsAre(1, 2));
}

TEST_F(ChoiceTellerTest, TellsTheChoiceOfTheOtherList)
{
    ChooseAndWait({"Roads"});
    ClickTab(1);
    QCoreApplication::processEvents();
    EXPECT_THAT(client.choices.back(), IsEmpty());
    ClickTab(2);
    QCoreApplication::processEvents();
    EXPECT_THAT(client.choices.back(), ElementsAre(1));
}

TEST_F(ChoiceTellerTest, TellsTheSameChoiceAgainOnlyAfterAClick)
{
    ChooseAndWait({"Roads"});
    EditorForm().Refresh();
    QCoreApplication::processEvents();
    EXPECT_EQ(client.choices.size(), 1u);
    Choose({"Roads"}); // another editor may have told its choice meanwhile
    EXPECT_TRUE(QTest::qWaitFor([&] { return client.choices.size() == 2; }));
}

TEST_F(ChoiceTellerTest, ShowsTheErrorOfTheHost)
{
    client.act = [] { throw RunTimeError(10001, "The map is gone.", {}); };
    MessageBoxRobot user{BoxKey::Enter};
    ChooseAndWait({"Roads"});
    EXPECT_EQ(user.Only().text, "The map is gone.");
}

TEST_F(ChoiceTellerTest, LetsTheHostEndTheEditor)
{
    client.act = [this] { EditorForm().UnloadWithoutApply(); };
    ChooseAndWait({"Roads"});
    EXPECT_EQ(client.choices.size(), 1u);
}

TEST_F(ChoiceTellerTest, LeavesAHostAloneThatEndedAfterTheEditor)
{
    Choose({"Roads"});
    EditorForm().UnloadWithoutApply();
    host.ClearLog();
    QCoreApplication::processEvents();
    EXPECT_THAT(client.choices, IsEmpty());
    EXPECT_THAT(host.Log().Trace(), IsEmpty());
}

TEST_F(ChoiceTellerTest, ReadsNoLayersOfAGroupWhileAFindIsTyped)
{
    ClickTab(1);
    ClickGroup("Transport");
    QCoreApplication::processEvents();
    host.ClearLog();
    for (const char letter : {'t', 'r', 'a'}) {
        QTest::keyClick(&Find<QLineEdit>("txtFind1"), letter);
        QCoreApplication::processEvents();
    }
    EXPECT_THAT(host.Log().CallsTo("OpenRecordset"), IsEmpty());
    EXPECT_EQ(client.choices.size(), 1u);
}

TEST_F(ChoiceTellerTest, TellsTheLayersThatAGroupHasAfterItWasReadAgain)
{
    ClickTab(1);
    ClickGroup("Transport");
    QCoreApplication::processEvents();
    host.AddMember(10, 3);
    EditorForm().Refresh();
    QCoreApplication::processEvents();
    EXPECT_THAT(client.choices.back(), testing::UnorderedElementsAre(1, 2, 3));
}

} // namespace

} // namespace Orvane::Testing
