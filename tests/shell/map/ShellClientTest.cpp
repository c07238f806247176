// SPDX-License-Identifier: MIT
#include "shell/map/ShellClient.h"

#include "hostkit/StandardShellServices.h"
#include "shell/map/LayerStates.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <QScreen>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class ShellClientTest : public testing::Test
{
protected:
    ShellClientTest()
    {
        m_window.setGeometry(20, 30, 300, 200);
        m_window.show();
        m_form.resize(200, 150);
    }

    void ShowForm() { static_cast<IStyleEditorClient&>(m_client).ShowEditor(&m_form); }

    std::unique_ptr<SqliteLayerDatabase> m_database = SqliteLayerDatabase::CreateInMemory();
    StandardShellServices m_services;
    QWidget m_window;
    QWidget m_form;
    LayerStates m_states;
    ShellClient m_client{*m_database, m_services, m_states, m_window};
};

} // namespace

TEST_F(ShellClientTest, TheEditorStandsBesideTheMap)
{
    ShowForm();
    EXPECT_TRUE(m_form.isVisible());
    EXPECT_GT(m_form.frameGeometry().left(), m_window.frameGeometry().right());
    EXPECT_EQ(m_form.frameGeometry().top(), m_window.frameGeometry().top());
}

TEST_F(ShellClientTest, TheEditorStaysOnTheScreen)
{
    const QRect screen = m_window.screen()->availableGeometry();
    m_window.setGeometry(screen.right() - 310, screen.bottom() - 60, 300, 200);
    ShowForm();
    const QRect shown = m_form.geometry();
    EXPECT_EQ(shown.intersected(screen), shown);
}

TEST_F(ShellClientTest, AnEditorThatIsLargerThanTheScreenIsMadeToFit)
{
    const QRect screen = m_window.screen()->availableGeometry();
    m_form.resize(screen.size() * 2);
    ShowForm();
    EXPECT_EQ(m_form.frameGeometry().intersected(screen), m_form.frameGeometry());
}

TEST_F(ShellClientTest, AnEditorThatComesBackByItselfTakesNoKeys)
{
    ShowForm();
    EXPECT_TRUE(m_form.testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(ShellClientTest, ThereIsNoMapScaleWithoutAMap)
{
    const IMapScale& map = m_client;
    EXPECT_EQ(map.CurrentScale(), 0);
    m_client.SetMapScale([] { return 25000; });
    EXPECT_EQ(map.CurrentScale(), 25000);
}

TEST_F(ShellClientTest, TheChosenLayersAreThoseOfTheEditorAsLongAsItIsOpen)
{
    int changes = 0;
    m_client.SetChoiceFollower([&] { ++changes; });
    ShowForm();
    static_cast<IChoiceWatch&>(m_client).LayersChosen(&m_form, {3, 4});
    EXPECT_EQ(m_client.ChosenLayers(), (std::vector<qint32>{3, 4}));
    EXPECT_EQ(changes, 1);
    static_cast<IStyleEditorClient&>(m_client).EditorClosed(&m_form);
    EXPECT_TRUE(m_client.ChosenLayers().empty());
    EXPECT_EQ(changes, 2);
}

TEST_F(ShellClientTest, AnEditorThatIsGoneCannotBeRaisedAndThatIsHarmless)
{
    m_client.RaiseEditor("");
    {
        QWidget passing;
        static_cast<IStyleEditorClient&>(m_client).ShowEditor(&passing);
    }
    m_client.RaiseEditor("");
    EXPECT_FALSE(m_form.isVisible());
}

} // namespace Orvane
