// SPDX-License-Identifier: MIT
#include "hostkit/manager/ComparePage.h"

#include "hostkit/manager/DifferencesModel.h"
#include "hostkit/manager/SchemeManagerFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

const QString Day = QStringLiteral("Day");

class CompareWindow : public SchemeWindow
{
protected:
    void ClickTab(int tab)
    {
        QTabBar& bar = *Find<QTabWidget>("tabPages").tabBar();
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(tab).center());
    }

    // Chooses the scheme in the table and compares it with the map.
    void CompareWithMap(const QString& scheme)
    {
        ClickScheme(scheme);
        ClickTab(1);
        WaitForLines();
    }

    void WaitForLines()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Lines().model()->rowCount() > 0; }));
    }

    QTableView& Lines() { return Find<QTableView>("tblDifferences"); }
    QString CountText() { return Find<QLabel>("lblDifferences").text(); }

    QStringList Line(int row)
    {
        QStringList texts;
        for (int column = 0; column < DifferencesModel::ColumnCount; ++column)
            texts << Lines().model()->index(row, column).data().toString();
        return texts;
    }

    void ClickLine(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QRect place = Lines().visualRect(Lines().model()->index(row, 0));
        QTest::mouseClick(Lines().viewport(), Qt::LeftButton, modifiers, place.center());
    }
};

TEST_F(CompareWindow, ComparesTheChosenSchemeWithTheMap)
{
    InWindow([&] {
        CompareWithMap(Day);
        EXPECT_THAT(
            Line(0),
            ElementsAre(
                QStringLiteral("Roads"), QStringLiteral("Line colour"), QStringLiteral("#050000"),
                QStringLiteral("#000000")));
        EXPECT_EQ(CountText(), QStringLiteral("Differences: 1"));
    });
}

TEST_F(CompareWindow, AnUndoneNameLeavesTheSchemeCompared)
{
    InWindow([&] {
        ClickScheme(Night);
        TypeName(QStringLiteral("Zenith"));
        PressKey(Qt::Key_F2);
        ClickTab(1);
        EXPECT_EQ(Find<QComboBox>("cmbTo").currentText(), QStringLiteral("Zenith"));
        PressKey(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Find<QComboBox>("cmbTo").currentText(), Night);
        EXPECT_EQ(Find<QComboBox>("cmbFrom").currentIndex(), 0);
    });
}

TEST_F(CompareWindow, ComparesTwoChosenSchemes)
{
    Set(1, "Color", 9);
    InWindow([&] {
        ClickScheme(Day);
        ClickScheme(Night, Qt::ControlModifier);
        ClickTab(1);
        WaitForLines();
        EXPECT_EQ(Find<QComboBox>("cmbFrom").currentText(), Day);
        EXPECT_EQ(Find<QComboBox>("cmbTo").currentText(), Night);
        EXPECT_EQ(Line(0).at(2), QStringLiteral("#000000"));
        EXPECT_EQ(Line(0).at(3), QStringLiteral("#050000"));
    });
}

TEST_F(CompareWindow, TakesOverTheChosenLinesAsOneStepWithOneRedraw)
{
    Set(2, "Visible", false);
    Set(2, "Priority", 77);
    Set(3, "Visible", false);
    QSignalSpy redraws(&m_client.Notifications(), &HostNotifications::LayersChanged);
    InWindow([&] {
        CompareWithMap(Day);
        ASSERT_EQ(Lines().model()->rowCount(), 4); // Fields, Rivers twice, Roads
        EXPECT_FALSE(Find<QPushButton>("cmdTakeOver").isEnabled());
        ClickLine(0);
        ClickLine(1, Qt::ControlModifier);
        Press("cmdTakeOver");
        EXPECT_TRUE(QTest::qWaitFor([&] { return Lines().model()->rowCount() == 2; }));
    });
    EXPECT_EQ(redraws.count(), 1);
    EXPECT_TRUE(ToBoolean(Get(3, "Visible")));
    EXPECT_TRUE(ToBoolean(Get(2, "Visible")));
    EXPECT_EQ(ToInt32(Get(2, "Priority")), 77);
    EXPECT_EQ(ToInt32(Get(1, "Color")), 5);
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Change 2 Layers"));
    History().Undo();
    EXPECT_FALSE(ToBoolean(Get(3, "Visible")));
    EXPECT_FALSE(ToBoolean(Get(2, "Visible")));
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(CompareWindow, TakesOverOnlyTheFlagsOfASchemeByKeysAndTakesThemBack)
{
    Set(2, "Visible", false);
    InWindow([&] {
        CompareWithMap(Day);
        Find<QComboBox>("cmbPart").setFocus();
        PressKey(Qt::Key_Down);
        EXPECT_EQ(CountText(), QStringLiteral("Differences: 1 of 2"));
        Lines().setFocus();
        PressKey(Qt::Key_A, Qt::ControlModifier);
        PressKey(Qt::Key_T, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ToBoolean(Get(2, "Visible")); }));
        EXPECT_EQ(ToInt32(Get(1, "Color")), 5);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Lines().model()->rowCount() == 0; }));
        PressKey(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_FALSE(ToBoolean(Get(2, "Visible")));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Lines().model()->rowCount() == 1; }));
    });
}

TEST_F(CompareWindow, FiltersTheLinesByTypedWords)
{
    Set(2, "Visible", false);
    InWindow([&] {
        CompareWithMap(Day);
        QTest::keyClicks(&Find<QLineEdit>("txtFilter"), QStringLiteral("riv"));
        EXPECT_EQ(Lines().model()->rowCount(), 1);
        EXPECT_EQ(Line(0).at(0), QStringLiteral("Rivers"));
        EXPECT_EQ(CountText(), QStringLiteral("Differences: 1 of 2"));
        QTest::keyClick(&Find<QLineEdit>("txtFilter"), Qt::Key_Return);
        EXPECT_TRUE(m_window->isVisible());
    });
}

TEST_F(CompareWindow, TakesNothingOverFromALayerThatTheSchemeDoesNotHave)
{
    Set(2, "Visible", false);
    AddLayer(9, QStringLiteral("Alleys"));
    InWindow([&] {
        CompareWithMap(Day);
        ClickLine(0);
        EXPECT_EQ(Line(0).at(3), QStringLiteral("not in the scheme"));
        EXPECT_FALSE(Find<QPushButton>("cmdTakeOver").isEnabled());
        PressKey(Qt::Key_A, Qt::ControlModifier);
        Press("cmdTakeOver");
        EXPECT_TRUE(QTest::qWaitFor([&] { return ToBoolean(Get(2, "Visible")); }));
    });
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Change 2 Layers"));
}

} // namespace
} // namespace Orvane::Testing
