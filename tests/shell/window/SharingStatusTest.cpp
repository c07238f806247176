// SPDX-License-Identifier: MIT
#include "shell/window/SharingStatus.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

using Link = IChangeNews::Link;

class SharingStatusTest : public testing::Test
{
protected:
    SharingStatusTest()
    {
        m_window.resize(900, 200);
        m_window.show();
    }

    QString Text() const { return m_status.findChild<QLabel*>(QStringLiteral("lblSharing"))->text(); }
    QString ToolTip() const { return m_status.findChild<QLabel*>(QStringLiteral("lblSharing"))->toolTip(); }
    QPushButton& Try() const { return *m_status.findChild<QPushButton*>(QStringLiteral("cmdTryServer")); }

    QMainWindow m_window;
    SharingStatus& m_status = *new SharingStatus(*m_window.statusBar());
};

} // namespace

TEST_F(SharingStatusTest, IsHiddenWhenThereIsNothingToTell)
{
    EXPECT_FALSE(m_status.isVisible());
    m_status.Show({}, Link::Present);
    EXPECT_FALSE(m_status.isVisible());
    m_status.Show({"anna"}, Link::Present);
    m_status.ShowNothing();
    EXPECT_FALSE(m_status.isVisible());
}

TEST_F(SharingStatusTest, NamesTheOthers)
{
    m_status.Show({"anna", "ben"}, Link::Present);
    EXPECT_TRUE(m_status.isVisible());
    EXPECT_FALSE(Try().isVisible());
    EXPECT_EQ(Text(), "Also opened by: anna, ben");
    EXPECT_EQ(ToolTip(), "Others who have the map open: anna, ben");
}

TEST_F(SharingStatusTest, CountsThoseForWhomThereIsNoRoom)
{
    m_status.Show({"anna", QString(60, 'b'), "carl", "dora", "emil"}, Link::Present);
    EXPECT_EQ(Text(), "Also opened by: anna, " + QString(19, 'b') + QChar(0x2026) + ", carl and 2 more");
    EXPECT_TRUE(ToolTip().endsWith("carl, dora, emil")) << qPrintable(ToolTip());
}

TEST_F(SharingStatusTest, ShowsANameAsItIs)
{
    m_status.Show({"<b>anna"}, Link::Present);
    EXPECT_EQ(Text(), "Also opened by: <b>anna");
    EXPECT_TRUE(ToolTip().contains("&lt;b&gt;anna")) << qPrintable(ToolTip());
}

TEST_F(SharingStatusTest, ALostServerCanBeTriedAtOnce)
{
    QSignalSpy wanted(&m_status, &SharingStatus::TryAgainWanted);
    m_status.Show({"anna"}, Link::Lost);
    EXPECT_EQ(Text(), "Connection lost, trying again");
    QTest::mouseClick(&Try(), Qt::LeftButton);
    EXPECT_EQ(wanted.count(), 1);
    m_status.Show({"anna"}, Link::Trying);
    QTest::mouseClick(&Try(), Qt::LeftButton);
    EXPECT_EQ(wanted.count(), 1) << "it is being tried";
    m_status.Show({"anna"}, Link::Present);
    EXPECT_EQ(Text(), "Also opened by: anna");
}

TEST_F(SharingStatusTest, TheButtonCanBePressedByKey)
{
    QSignalSpy wanted(&m_status, &SharingStatus::TryAgainWanted);
    m_status.Show({}, Link::Lost);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &m_window; }));
    Try().setFocus();
    QTest::keyClick(&Try(), Qt::Key_Space);
    EXPECT_EQ(wanted.count(), 1);
}

} // namespace Orvane
