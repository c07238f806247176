// SPDX-License-Identifier: MIT
// The component under hosts that were built with the headers of earlier contracts.
#include "fixtures/OldHost.h"

#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLibrary>
#include <QMenu>
#include <QTabBar>
#include <QTreeView>
#include <QtTest>

#include <algorithm>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace Orvane::Testing {

namespace {

class OldHosts : public testing::TestWithParam<const char*>
{
protected:
    OldHosts()
    {
        m_host.AddLayer({.id = 1, .name = "Roads"});
        m_host.AddGroup({.id = 10, .name = QString("Transport"), .members = {1}});
        m_host.OnShowEditor = [this](QWidget* form) {
            m_form = form;
            form->show();
        };
        const auto function = reinterpret_cast<OldHostFunction>(m_file.resolve(OldHostSymbol));
        m_old = function ? function() : nullptr;
    }

    void SetUp() override
    {
        ASSERT_NE(m_old, nullptr) << qPrintable(m_file.errorString());
        ASSERT_TRUE(m_old->start(ORVANE_COMPONENT, static_cast<IStyleEditorClient*>(&m_host)));
    }

    void TearDown() override
    {
        if (m_old)
            m_old->end();
    }

    QTreeView* List() { return m_form->findChild<QTreeView*>(QStringLiteral("tvLayers2")); }

    void ClickTab(int tab)
    {
        auto* tabs = m_form->findChild<QTabBar*>(QStringLiteral("tsLists"));
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab - 1).center());
        QCoreApplication::sendPostedEvents();
    }

    /// The user selects the first layer of the flat list.
    void SelectLayer()
    {
        ClickTab(2);
        QTreeView* list = List();
        ASSERT_GT(list->model()->rowCount(), 0);
        const QRect row = list->visualRect(list->model()->index(0, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
    }

    void Click(const char* name)
    {
        auto* control = m_form->findChild<QWidget*>(QLatin1String(name));
        auto* box = control->findChild<QAbstractButton*>();
        QTest::mouseClick(box ? box : control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
    }

    QLibrary m_file{QString::fromLocal8Bit(GetParam())};
    MemoryHost m_host;
    const OldHost* m_old = nullptr;
    QWidget* m_form = nullptr;
};

std::vector<const char*> Hosts()
{
    return {
#ifdef HOST_1_0
        HOST_1_0,
#endif
        HOST_1_4};
}

std::string ContractOf(const testing::TestParamInfo<const char*>& host)
{
    return std::string(host.param).find("1_0") == std::string::npos ? "OfContract14" : "OfContract10";
}

} // namespace

TEST_P(OldHosts, OpenAnEditorApplyEditsAndCloseIt)
{
    m_old->open();
    ASSERT_NE(m_form, nullptr);
    SelectLayer();
    Click("chkVisible");
    m_host.ClearLog();
    Click("cmdApply");
    EXPECT_EQ(ToInt32(m_host.LayerColumn(1, "Visible")), 0);
    EXPECT_THAT(
        m_host.Calls(), testing::IsSupersetOf({"BeginLayerEdit()", "LayerChanged(1)", "RedrawMap()"}));
    m_host.ClearLog();
    m_old->close();
    EXPECT_THAT(m_host.Calls(), testing::Contains("EditorClosed()"));
}

TEST_P(OldHosts, ReachTheMembersOfTheForm)
{
    m_old->open();
    m_host.ClearLog();
    m_old->refresh();
    EXPECT_THAT(m_host.Calls(), testing::Contains("LayerDisplayName(1)"));
    EXPECT_FALSE(m_host.Queries().isEmpty());
    m_old->close();
}

TEST_P(OldHosts, CatchTheErrorsOfTheComponent)
{
    m_old->open();
    EXPECT_EQ(m_old->errorOfDuplicate(), 1234);
}

TEST_P(OldHosts, MissNothingThatCameLater)
{
    m_host.AddLayer({.id = 2, .name = "Rivers"});
    m_old->open();
    SelectLayer();
    QTest::keyClick(List(), Qt::Key_A, Qt::ControlModifier);
    m_host.ClearLog();
    QTest::keyClick(List(), Qt::Key_Delete);
    QCoreApplication::processEvents();
    EXPECT_THAT(m_host.Calls(), testing::IsSupersetOf({"DeleteLayer(1)", "DeleteLayer(2)"}));
    ClickTab(3);
    EXPECT_FALSE(m_form->findChild<QAbstractButton*>(QStringLiteral("cmdManage"))->isVisible());
}

TEST_P(OldHosts, CannotShowOnlySomeLayers)
{
    m_old->open();
    SelectLayer();
    QContextMenuEvent event(
        QContextMenuEvent::Keyboard, List()->rect().center(), List()->mapToGlobal(List()->rect().center()));
    QCoreApplication::sendEvent(List(), &event);
    QCoreApplication::processEvents();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    const QList<QAction*> entries = menu->actions();
    const auto entry = std::find_if(entries.begin(), entries.end(), [](const QAction* action) {
        return action->text() == QLatin1String("Show Only These");
    });
    ASSERT_NE(entry, entries.end());
    EXPECT_FALSE((*entry)->isEnabled());
    EXPECT_EQ((*entry)->toolTip(), QStringLiteral("This map cannot keep which layers were hidden."));
    menu->close();
    QCoreApplication::processEvents();
}

TEST_P(OldHosts, AreAskedWhatTheirContractHas)
{
    const bool isOf14 = QString::fromLocal8Bit(GetParam()).contains(QLatin1String("1_4"));
    m_old->open();
    EXPECT_STREQ(m_old->told(), isOf14 ? "EditorShown " : "");
    SelectLayer();
    Click("chkVisible");
    m_host.SetLayerColumn(1, "Visible", Value::Null());
    Click("cmdApply");
    EXPECT_STREQ(m_old->told(), isOf14 ? "EditorShown AskAboutConflicts " : "");
    EXPECT_EQ(m_host.LayerColumn(1, "Visible").IsNull(), isOf14) << "asked, the user keeps what is stored";
    m_old->close();
    EXPECT_STREQ(m_old->told(), isOf14 ? "EditorShown AskAboutConflicts EditorEnded " : "");
}

INSTANTIATE_TEST_SUITE_P(All, OldHosts, testing::ValuesIn(Hosts()), ContractOf);

} // namespace Orvane::Testing
