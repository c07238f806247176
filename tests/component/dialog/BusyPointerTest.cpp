// SPDX-License-Identifier: MIT
#include "ovctrls/BusyPointer.h"

#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

namespace Orvane::Testing {

namespace {

/// Records whether the busy pointer was shown each time that the host worked.
class PointerWatcher : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;

    /// True when the host worked since the last call, always under the busy pointer.
    bool TakeWasBusy()
    {
        const bool wasBusy = m_busyCalls > 0 && m_idleCalls == 0;
        m_busyCalls = m_idleCalls = 0;
        return wasBusy;
    }

private:
    void Note() { ++(QGuiApplication::overrideCursor() ? m_busyCalls : m_idleCalls); }

    void IStyleEditorClient_LayerChanged(qint32 layerID) override
    {
        Note();
        ForwardingClient::IStyleEditorClient_LayerChanged(layerID);
    }
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override
    {
        Note();
        return ForwardingClient::IStyleEditorClient_LayerDisplayName(layerID);
    }
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override
    {
        Note();
        return ForwardingClient::IStyleEditorClient_LayersTable();
    }
    ILayerDatabase& IStyleEditorClient_Database() override
    {
        Note();
        return ForwardingClient::IStyleEditorClient_Database();
    }

    int m_busyCalls = 0;
    int m_idleCalls = 0;
};

class BusyPointers : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        UseClient(client);
    }

    void ChooseExpandAll()
    {
        auto& tree = Find<QTreeView>("tvLayers1");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, tree.mapToGlobal(tree.rect().center()));
        QApplication::sendEvent(&tree, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        client.TakeWasBusy(); // one row was read for the menu
        for (QAction* action : menu->actions()) {
            if (action->text() == "Expand All")
                action->trigger();
        }
        menu->close();
        QCoreApplication::processEvents();
    }

    PointerWatcher client{host};
};

TEST_F(BusyPointers, CoverReading)
{
    Open();
    EXPECT_TRUE(client.TakeWasBusy()) << "the flat list";
    ClickTab(1);
    EXPECT_TRUE(client.TakeWasBusy()) << "the groups";
    ClickGroup("Transport");
    EXPECT_TRUE(client.TakeWasBusy()) << "the settings";
    ChooseExpandAll();
    EXPECT_TRUE(client.TakeWasBusy()) << "storing what is expanded";
    EditorForm().RefreshLayerNames({1, 2});
    EXPECT_TRUE(client.TakeWasBusy()) << "the names";
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(BusyPointers, CoverApplying)
{
    Open();
    ClickLayer("Roads");
    client.TakeWasBusy();
    Click("chkVisible");
    Click("cmdApply");
    EXPECT_TRUE(client.TakeWasBusy());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace

} // namespace Orvane::Testing
