// SPDX-License-Identifier: MIT
#include "hostkit/StandardShellServices.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/FillPatterns.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

namespace Orvane::Testing {
namespace {

class Services : public testing::Test
{
protected:
    Services() : m_entry(new QLineEdit(QStringLiteral("12"), &m_window)) { }

    void ShowEntry() { m_window.show(); }

    void EnterWhole(double minimum, double maximum, const std::function<void(QLineEdit&)>& act)
    {
        WhenModal([act](QWidget& popup) { act(*popup.findChild<QLineEdit*>()); });
        m_services.EnterValue(
            m_entry, EntryKind::Integer, minimum, maximum, QStringLiteral("Enter Line Width"));
    }

    StandardShellServices m_services;
    QDialog m_window;
    QLineEdit* m_entry;
};

TEST_F(Services, GiveTheFillPatternsAsKindSeven)
{
    EXPECT_EQ(m_services.FillPattern(7, 21).rows, FillPatterns::Bitmap(21).rows);
}

TEST_F(Services, KnowNoOtherKindOfPattern)
{
    EXPECT_EQ(ErrorOf([&] { m_services.FillPattern(6, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { m_services.FillPattern(7, 32); }), 9);
}

TEST_F(Services, TheListBackColourIsThePalettesWithRedInTheLowByte)
{
    const QPalette former = QApplication::palette();
    QPalette palette = former;
    palette.setColor(QPalette::Base, QColor(0x11, 0x22, 0x33));
    QApplication::setPalette(palette);
    EXPECT_EQ(m_services.ListBackColour(), 0x332211);
    QApplication::setPalette(former);
}

TEST_F(Services, ScalesAreThoseOfTheScaleTable)
{
    EXPECT_EQ(m_services.ScaleFromIndex(1), 100);
    EXPECT_EQ(m_services.IndexFromScale(200'000'000), 255);
}

TEST_F(Services, TheEntryPopupPutsTheValueIntoTheControl)
{
    ShowEntry();
    EnterWhole(0, 100, [](QLineEdit& entry) {
        EXPECT_EQ(entry.text(), QStringLiteral("12"));
        QTest::keyClicks(&entry, QStringLiteral("57"));
        QTest::keyClick(&entry, Qt::Key_Return);
    });
    EXPECT_EQ(m_entry->text(), QStringLiteral("57"));
}

TEST_F(Services, TheEntryPopupLabelsItsEntryAsAValue)
{
    ShowEntry();
    EnterWhole(0, 100, [](QLineEdit& entry) {
        EXPECT_EQ(
            entry.window()->findChild<QLabel*>(QStringLiteral("lblText"))->text(), QStringLiteral("Value:"));
        QTest::keyClick(&entry, Qt::Key_Escape);
    });
}

TEST_F(Services, TheEntryPopupLeavesTheControlWhenItIsCancelled)
{
    ShowEntry();
    EnterWhole(0, 100, [](QLineEdit& entry) {
        QTest::keyClicks(&entry, QStringLiteral("57"));
        QTest::keyClick(&entry, Qt::Key_Escape);
    });
    EXPECT_EQ(m_entry->text(), QStringLiteral("12"));
}

TEST_F(Services, TheEntryPopupStandsOverItsControl)
{
    m_window.move(200, 150);
    ShowEntry();
    EnterWhole(0, 100, [this](QLineEdit& entry) {
        const QPoint distance = entry.mapToGlobal(QPoint(0, 0)) - m_entry->mapToGlobal(QPoint(0, 0));
        EXPECT_LE(distance.manhattanLength(), 4);
        QTest::keyClick(&entry, Qt::Key_Escape);
    });
}

TEST_F(Services, ShowModalWaitsUntilCloseModal)
{
    QDialog form;
    bool closed = false;
    WhenModal([&](QWidget& shown) {
        EXPECT_EQ(&shown, &form);
        closed = true;
        m_services.CloseModal(&form);
    });
    m_services.ShowModal(&form);
    EXPECT_TRUE(closed);
    EXPECT_FALSE(form.isVisible());
}

} // namespace
} // namespace Orvane::Testing
