// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemesPage.h"

#include "hostkit/manager/SchemeManagerFixture.h"
#include "hostkit/manager/SchemesModel.h"
#include "hostkit/schemes/LayerSchemes.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

const QString Day = QStringLiteral("Day");
const QString Locks = QStringLiteral("Locks");

// What partial schemes, their order and the opening need in the window.
class SchemeWindowParts : public SchemeWindow
{
protected:
    SchemeWindowParts() { m_client.SetAppliesSchemeAtOpening(true); }

    // The user's answer to the next question about what a scheme holds. name: empty if it is not asked for.
    static void TickParts(const QString& name, const std::vector<const char*>& clicked)
    {
        WhenModal([=](QWidget& dialog) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            if (!name.isEmpty())
                QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("bedText")), name);
            for (const char* box : clicked) {
                ASSERT_NO_FATAL_FAILURE(TabTo(dialog, QLatin1String(box)));
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
            }
            auto* buttons = dialog.findChild<QDialogButtonBox*>();
            QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
            EXPECT_EQ(ok->isEnabled(), clicked.size() < 3);
            QTest::mouseClick(
                ok->isEnabled() ? ok : buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        });
    }

    static void TabTo(QWidget& dialog, const QString& box)
    {
        const auto focus
            = [&] { return dialog.focusWidget() ? dialog.focusWidget()->objectName() : QString(); };
        constexpr int more = 10; // than all controls
        for (int presses = 0; presses < more && focus() != box; ++presses)
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(focus(), box);
    }

    QStringList Holds() { return Column(SchemesModel::Holds); }
    static QString AllOfThem() { return QStringLiteral("All properties"); }

    // The upper edge of a row in the table, or below the last one.
    QPoint TopOf(int row)
    {
        const int last = Table().model()->rowCount() - 1;
        const QRect place = Table().visualRect(Table().model()->index(qMin(row, last), 0));
        return {place.center().x(), row > last ? place.bottom() + place.height() : place.top() + 1};
    }

    // As the end of a drag.
    void DropOn(const QString& name, int row)
    {
        const std::unique_ptr<QMimeData> data(
            Table().model()->mimeData({Table().model()->index(int(Column(0).indexOf(name)), 0)}));
        const QPoint place = TopOf(row);
        QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Table().viewport(), &enter);
        QDragMoveEvent move(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Table().viewport(), &move);
        QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Table().viewport(), &drop);
        QCoreApplication::processEvents();
    }

    void ClickHeader(int column)
    {
        QHeaderView& header = *Table().horizontalHeader();
        const int x = header.sectionViewportPosition(column) + 20;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {x, header.height() / 2});
    }

    void ClickOpening()
    {
        auto& box = Find<QCheckBox>("chkAtOpening");
        QTest::mouseClick(&box, Qt::LeftButton, {}, {10, box.height() / 2});
    }

    bool IsCounted() { return !Column(SchemesModel::Differing).contains(QStringLiteral("...")); }
};

TEST_F(SchemeWindowParts, MakesASchemeOfTheFlagsAlone)
{
    InWindow([&] {
        TickParts(Locks, {"chkAppearance", "chkScales"});
        PressKey(Qt::Key_N, Qt::ControlModifier);
        EXPECT_THAT(Column(0), ElementsAre(Day, Locks, Night, Standard));
        EXPECT_THAT(Holds(), ElementsAre(AllOfThem(), QStringLiteral("Flags"), AllOfThem(), AllOfThem()));
        EXPECT_EQ(Table().currentIndex().row(), 1);
        EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Create Scheme \"Locks\""));
    });
    EXPECT_EQ(Host().GetCurrentScheme(), Night);
    History().Undo();
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Day, Night, Standard));
}

TEST_F(SchemeWindowParts, MakesNoSchemeThatHoldsNothing)
{
    InWindow([&] {
        TickParts(Locks, {"chkFlags", "chkAppearance", "chkScales"});
        Press("cmdNew");
    });
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Day, Night, Standard));
}

TEST_F(SchemeWindowParts, ChangesWhatASchemeHoldsAndTakesItBack)
{
    InWindow([&] {
        ClickScheme(Day);
        TickParts({}, {"chkFlags"});
        Press("cmdHolds");
        EXPECT_EQ(Holds().value(0), QStringLiteral("Appearance, Scales"));
        EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Change What Scheme \"Day\" Holds"));
        PressKey(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Holds().value(0), AllOfThem());
    });
    Host().LoadScheme(Day);
    EXPECT_EQ(ToInt32(Get(1, "Color")), 0);
}

TEST_F(SchemeWindowParts, AnUndoneChangeOfWhatItHoldsBringsTheValuesBack)
{
    Host().LoadScheme(Day);
    Set(1, "Visible", false);
    Host().SaveScheme(Day);
    History().Clear();
    InWindow([&] {
        ClickScheme(Day);
        TickParts({}, {"chkFlags"});
        Press("cmdHolds");
    });
    History().Undo();
    Set(1, "Visible", true);
    Host().LoadScheme(Day);
    EXPECT_FALSE(ToBoolean(Get(1, "Visible")));
}

TEST_F(SchemeWindowParts, ComparesOnlyWhatTheSchemeHolds)
{
    LayerSchemes(Database()).SetHolds(Day, SchemePart::Flags);
    InWindow([&] {
        ClickScheme(Day);
        PressKey(Qt::Key_P, Qt::AltModifier);
        const auto text = [&] { return Find<QLabel>("lblDifferences").text(); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return text().contains(QStringLiteral("compared")); }));
        EXPECT_EQ(text(), QStringLiteral("Differences: 0 (compared: Flags)"));
    });
}

TEST_F(SchemeWindowParts, MovesSchemesByKeysAndKeepsTheOrder)
{
    InWindow([&] {
        ClickScheme(Standard);
        PressKey(Qt::Key_Up, Qt::AltModifier);
        PressKey(Qt::Key_Up, Qt::AltModifier);
        EXPECT_THAT(Column(0), ElementsAre(Standard, Day, Night));
        EXPECT_EQ(Table().currentIndex().row(), 0);
        EXPECT_FALSE(Find<QPushButton>("cmdMoveUp").isEnabled());
        PressKey(Qt::Key_Down, Qt::AltModifier);
        EXPECT_THAT(Column(0), ElementsAre(Day, Standard, Night));
        EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Reorder Schemes"));
    });
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Day, Standard, Night));
    History().Undo();
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Standard, Day, Night));
}

TEST_F(SchemeWindowParts, MovesASchemeThatIsDropped)
{
    InWindow([&] {
        DropOn(Standard, 0);
        EXPECT_THAT(Column(0), ElementsAre(Standard, Day, Night));
        DropOn(Day, 3);
        EXPECT_THAT(Column(0), ElementsAre(Standard, Night, Day));
    });
}

TEST_F(SchemeWindowParts, SortsByWhatTheSchemesHold)
{
    LayerSchemes(Database()).SetHolds(Day, SchemePart::Scales);
    LayerSchemes(Database()).SetHolds(Standard, SchemePart::Flags);
    InWindow([&] {
        ClickHeader(SchemesModel::Holds);
        EXPECT_THAT(Holds(), ElementsAre(QStringLiteral("Flags"), QStringLiteral("Scales"), AllOfThem()));
        EXPECT_THAT(Column(0), ElementsAre(Standard, Day, Night));
        ClickHeader(SchemesModel::Holds);
        EXPECT_THAT(Column(0), ElementsAre(Night, Day, Standard));
    });
}

TEST_F(SchemeWindowParts, CountsOnlyAgainWhenValuesHaveChanged)
{
    InWindow([&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return IsCounted(); }));
        ClickScheme(Day);
        TypeName(QStringLiteral("Zenith"));
        PressKey(Qt::Key_F2);
        EXPECT_TRUE(IsCounted());
        PressKey(Qt::Key_Up, Qt::AltModifier);
        EXPECT_TRUE(IsCounted());
        ClickOpening();
        EXPECT_TRUE(IsCounted());
        for (int step = 0; step < 3; ++step) {
            PressKey(Qt::Key_Z, Qt::ControlModifier);
            EXPECT_TRUE(IsCounted()) << step;
        }
        EXPECT_FALSE(History().CanUndo());
        EXPECT_THAT(Column(0), ElementsAre(Day, Night, Standard));
        Host().SaveScheme(Day);
        EXPECT_FALSE(IsCounted());
    });
}

TEST_F(SchemeWindowParts, SortsTheSchemesByNameAsOneStep)
{
    LayerSchemes(Database()).SetOrder({Standard, Night, Day});
    InWindow([&] {
        EXPECT_THAT(Column(0), ElementsAre(Standard, Night, Day));
        Press("cmdSortByName");
        EXPECT_THAT(Column(0), ElementsAre(Day, Night, Standard));
        EXPECT_FALSE(Find<QPushButton>("cmdSortByName").isEnabled());
        PressKey(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_THAT(Column(0), ElementsAre(Standard, Night, Day));
    });
}

TEST_F(SchemeWindowParts, ACustomOrderStaysWhileTheTableIsSortedByDate)
{
    Database().Execute(QStringLiteral("UPDATE LayerSchemes SET SavedAt = '2001-01-01T00:00:00Z'"
                                      " WHERE Name = 'Standard'"));
    Database().Execute(QStringLiteral("UPDATE LayerSchemes SET SavedAt = NULL WHERE Name = 'Night'"));
    InWindow([&] {
        ClickHeader(SchemesModel::Saved);
        EXPECT_THAT(Column(0), ElementsAre(Night, Standard, Day));
        ClickScheme(Day);
        EXPECT_FALSE(Find<QPushButton>("cmdMoveUp").isEnabled());
        EXPECT_FALSE(Find<QPushButton>("cmdMoveUp").toolTip().isEmpty());
        ClickHeader(SchemesModel::Saved);
        EXPECT_THAT(Column(0), ElementsAre(Day, Standard, Night));
        ClickHeader(SchemesModel::Saved);
        EXPECT_THAT(Column(0), ElementsAre(Day, Night, Standard));
    });
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Day, Night, Standard));
}

TEST_F(SchemeWindowParts, SortsByNameInTheMenuThatShiftF10Opens)
{
    LayerSchemes(Database()).SetOrder({Standard, Night, Day});
    InWindow([&] {
        ClickScheme(Night);
        PressKey(Qt::Key_F10, Qt::ShiftModifier);
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_T); // the submenu's letter
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        EXPECT_THAT(Column(0), ElementsAre(Day, Night, Standard));
        EXPECT_TRUE(Find<QPushButton>("cmdSortByName").isEnabled());
    });
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Standard, Night, Day));
}

TEST_F(SchemeWindowParts, ChoosesTheSchemeForTheOpening)
{
    InWindow([&] {
        ClickScheme(Day);
        ClickOpening();
        EXPECT_THAT(
            Column(SchemesModel::AtOpening), ElementsAre(QStringLiteral("yes"), QString(), QString()));
        EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Apply Scheme \"Day\" at Opening"));
        ClickScheme(Standard);
        EXPECT_FALSE(Find<QCheckBox>("chkAtOpening").isChecked());
        ClickScheme(Day);
        EXPECT_TRUE(Find<QCheckBox>("chkAtOpening").isChecked());
        PressKey(Qt::Key_A, Qt::AltModifier);
        const auto isNone = [&] { return Column(SchemesModel::AtOpening) == QStringList{{}, {}, {}}; };
        EXPECT_TRUE(QTest::qWaitFor(isNone)); // the box is pressed for a moment
    });
}

TEST_F(SchemeWindowParts, OffersNothingForTheOpeningToAHostThatOpensNone)
{
    m_client.SetAppliesSchemeAtOpening(false);
    InWindow([&] {
        EXPECT_FALSE(Find<QCheckBox>("chkAtOpening").isVisible());
        EXPECT_TRUE(Table().isColumnHidden(SchemesModel::AtOpening));
    });
}

TEST_F(SchemeWindowParts, TheChosenSchemeIsLoadedAtTheOpeningAsOneStep)
{
    LayerSchemes(Database()).SetAtOpening(Day);
    EXPECT_EQ(m_client.ApplySchemeAtOpening(), Day);
    EXPECT_EQ(ToInt32(Get(1, "Color")), 0);
    EXPECT_EQ(Host().GetCurrentScheme(), Day);
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Load Scheme \"Day\""));
    History().Undo();
    EXPECT_EQ(Host().GetCurrentScheme(), Night);
    EXPECT_EQ(ToInt32(Get(1, "Color")), 5);
}

TEST_F(SchemeWindowParts, AMapThatIsAsTheSchemeSaysIsLeftAlone)
{
    EXPECT_EQ(m_client.ApplySchemeAtOpening(), std::nullopt);
    LayerSchemes(Database()).SetAtOpening(Night);
    const QStringList statements
        = StatementsOf([&] { EXPECT_EQ(m_client.ApplySchemeAtOpening(), std::nullopt); });
    EXPECT_TRUE(statements.filter(QStringLiteral("UPDATE")).isEmpty());
    EXPECT_FALSE(History().CanUndo());
}

} // namespace
} // namespace Orvane::Testing
