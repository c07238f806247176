// SPDX-License-Identifier: MIT
// The component under a host that was built with the headers of contract 1.0.
#include "fixtures/contract_1_0/OldHost.h"

#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLibrary>
#include <QTabBar>
#include <QTreeView>
#include <QtTest>

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

class OldHosts : public testing::Test
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

    /// The user selects the only layer of the flat list.
    void SelectLayer()
    {
        auto* tabs = m_form->findChild<QTabBar*>(QStringLiteral("tsLists"));
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
        QCoreApplication::sendPostedEvents();
        auto* list = m_form->findChild<QTreeView*>(QStringLiteral("tvLayers2"));
        ASSERT_EQ(list->model()->rowCount(), 1);
        const QRect row = list->visualRect(list->model()->index(0, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
    }

    void Click(const char* name)
    {
        auto* control = m_form->findChild<QWidget*>(QLatin1String(name));
        auto* box = control->findChild<QAbstractButton*>();
        QTest::mouseClick(box ? box : control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
    }

    QLibrary m_file{QStringLiteral(OLD_HOST)};
    MemoryHost m_host;
    const OldHost* m_old = nullptr;
    QWidget* m_form = nullptr;
};

} // namespace

TEST_F(OldHosts, OpenAnEditorApplyEditsAndCloseIt)
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

TEST_F(OldHosts, ReachTheMembersOfTheForm)
{
    m_old->open();
    m_host.ClearLog();
    m_old->refresh();
    EXPECT_THAT(m_host.Calls(), testing::Contains("LayerDisplayName(1)"));
    EXPECT_FALSE(m_host.Queries().isEmpty());
    m_old->close();
}

TEST_F(OldHosts, CatchTheErrorsOfTheComponent)
{
    m_old->open();
    EXPECT_EQ(m_old->errorOfDuplicate(), 1234);
}

} // namespace Orvane::Testing
