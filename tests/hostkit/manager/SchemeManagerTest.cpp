// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemeManager.h"

#include "hostkit/manager/SchemeManagerFixture.h"

#include <QFile>
#include <QHeaderView>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

const QString Day = QStringLiteral("Day");

TEST_F(SchemeWindow, ListsTheSchemesAndMarksTheCurrentOne)
{
    InWindow([&] {
        EXPECT_THAT(Column(0), ElementsAre(Day, Night, Standard));
        EXPECT_THAT(Column(2), ElementsAre(QString(), QStringLiteral("yes"), QString()));
    });
}

TEST_F(SchemeWindow, CountsTheLayersThatDifferWhileTheUserLooks)
{
    InWindow([&] {
        const auto isCounted = [&] { return !Column(1).contains(QStringLiteral("...")); };
        EXPECT_TRUE(QTest::qWaitFor(isCounted));
        EXPECT_THAT(Column(1), ElementsAre(QStringLiteral("1"), QStringLiteral("0"), QStringLiteral("1")));
    });
}

TEST_F(SchemeWindow, RenamesAndTakesItBackByKeys)
{
    InWindow([&] {
        ClickScheme(Day);
        TypeName(QStringLiteral("Zenith"));
        PressKey(Qt::Key_F2);
        EXPECT_THAT(Column(0), ElementsAre(Night, Standard, QStringLiteral("Zenith")));
        EXPECT_EQ(Table().currentIndex().row(), 2);
        EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Rename Scheme \"Zenith\""));
        PressKey(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_THAT(Column(0), ElementsAre(Day, Night, Standard));
    });
}

TEST_F(SchemeWindow, AnUndoneNameLeavesTheSchemeChosen)
{
    InWindow([&] {
        ClickScheme(Day);
        TypeName(QStringLiteral("Zenith"));
        PressKey(Qt::Key_F2);
        PressKey(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_TRUE(Table().selectionModel()->isRowSelected(0, {}));
        EXPECT_EQ(Table().currentIndex().row(), 0);
        PressKey(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_TRUE(Table().selectionModel()->isRowSelected(2, {}));
        EXPECT_EQ(Table().currentIndex().row(), 2);
    });
}

TEST_F(SchemeWindow, KeepsANameThatAnotherSchemeHas)
{
    InWindow([&] {
        ClickScheme(Day);
        TypeName(Night);
        MessageBoxRobot user{BoxKey::Enter};
        Press("cmdRename");
        EXPECT_EQ(user.Only().text, QStringLiteral("There is a layer scheme named \"Night\" already."));
    });
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Day, Night, Standard));
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(SchemeWindow, AsksAgainForABlankName)
{
    InWindow([&] {
        ClickScheme(Day);
        TypeName(QStringLiteral("  "));
        MessageBoxRobot user{BoxKey::Enter};
        user.BeforeAnswer([](QMessageBox&) { TypeName(QStringLiteral("Dusk")); });
        Press("cmdRename");
        EXPECT_EQ(user.Only().text, QStringLiteral("Please supply a non-blank name, or cancel."));
    });
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(QStringLiteral("Dusk"), Night, Standard));
}

TEST_F(SchemeWindow, DuplicatesTheSavedValues)
{
    const QStringList colours
        = RowsOf(QStringLiteral("SELECT Color AS Line FROM LayerSchemeValues, LayerSchemes"
                                " WHERE LayerSchemeValues.SchemeID = LayerSchemes.SchemeID"
                                " AND LayerSchemes.Name = 'Day' ORDER BY LayerID"));
    InWindow([&] {
        ClickScheme(Day);
        TypeName(QStringLiteral("Dusk"));
        Press("cmdDuplicate");
    });
    EXPECT_EQ(
        RowsOf(QStringLiteral("SELECT Color AS Line FROM LayerSchemeValues, LayerSchemes"
                              " WHERE LayerSchemeValues.SchemeID = LayerSchemes.SchemeID"
                              " AND LayerSchemes.Name = 'Dusk' ORDER BY LayerID")),
        colours);
    EXPECT_EQ(Host().GetCurrentScheme(), Night);
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Duplicate Scheme \"Day\""));
}

TEST_F(SchemeWindow, DeletesSeveralAfterOneQuestionAsOneStep)
{
    InWindow([&] {
        ClickScheme(Day);
        ClickScheme(Night, Qt::ControlModifier);
        MessageBoxRobot user{BoxKey::Yes};
        PressKey(Qt::Key_Delete);
        EXPECT_EQ(user.Only().text, QStringLiteral("Delete 2 schemes? The layers stay as they are."));
    });
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Standard));
    EXPECT_EQ(ToInt32(Get(1, "Color")), 5);
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Delete 2 Schemes"));
    History().Undo();
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Day, Night, Standard));
    EXPECT_EQ(Host().GetCurrentScheme(), Night);
}

TEST_F(SchemeWindow, EndsWithItsFormWhileItAsks)
{
    auto form = std::make_unique<QWidget>();
    WhenModal([&](QWidget& window) {
        m_window = &window;
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        ClickScheme(Day);
        WhenModal([&](QWidget&) { form.reset(); });
        PressKey(Qt::Key_Delete);
    });
    static_cast<ISchemeManager&>(m_client).ManageSchemes(form.get());
    EXPECT_EQ(form, nullptr);
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Day, Night, Standard));
}

TEST_F(SchemeWindow, DeletesNothingWhenTheUserSaysNo)
{
    InWindow([&] {
        ClickScheme(Day);
        MessageBoxRobot user{BoxKey::No};
        Press("cmdDelete");
        EXPECT_EQ(
            user.Only().text, QStringLiteral("Delete the scheme \"Day\"? The layers stay as they are."));
    });
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Day, Night, Standard));
}

TEST_F(SchemeWindow, NeverDeletesAllSchemes)
{
    InWindow([&] {
        Table().setFocus();
        PressKey(Qt::Key_A, Qt::ControlModifier);
        MessageBoxRobot user{BoxKey::Enter};
        PressKey(Qt::Key_Delete);
        EXPECT_EQ(user.Only().text, QStringLiteral("The last layer scheme cannot be deleted."));
    });
    EXPECT_EQ(Host().GetSchemeNames().size(), 3);
}

TEST_F(SchemeWindow, OffersWhatTheChosenSchemesAllow)
{
    InWindow([&] {
        ClickScheme(Day);
        EXPECT_TRUE(Find<QPushButton>("cmdRename").isEnabled());
        ClickScheme(Night, Qt::ControlModifier);
        EXPECT_FALSE(Find<QPushButton>("cmdRename").isEnabled());
        EXPECT_FALSE(Find<QPushButton>("cmdExport").isEnabled());
        EXPECT_TRUE(Find<QPushButton>("cmdDelete").isEnabled());
    });
}

void ChooseFile(const QString& path)
{
    WhenModal([path](QWidget& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_TRUE(name);
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

TEST_F(SchemeWindow, ExportsASchemeAndImportsItOverAnother)
{
    const QString file = m_folder.filePath(QStringLiteral("day.json"));
    InWindow([&] {
        ClickScheme(Day);
        ChooseFile(file);
        Press("cmdExport");
        Host().SaveScheme(Day);
        ClickScheme(Day);
        ChooseFile(file);
        MessageBoxRobot user{BoxKey::Yes, BoxKey::Escape};
        Press("cmdImport");
        ASSERT_EQ(user.Boxes().size(), 2U);
        EXPECT_TRUE(user.Boxes()[0].text.contains(QStringLiteral("already exists")));
        EXPECT_TRUE(user.Boxes()[1].text.contains(QStringLiteral("was imported")));
    });
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Import Scheme \"Day\""));
    EXPECT_EQ(ToInt32(Get(1, "Color")), 5);
}

TEST_F(SchemeWindow, RemembersItsSizeAndItsColumns)
{
    InWindow([&] {
        m_window->resize(700, 500);
        Table().horizontalHeader()->resizeSection(0, 222);
    });
    InWindow([&] {
        EXPECT_EQ(m_window->size(), QSize(700, 500));
        EXPECT_EQ(Table().columnWidth(0), 222);
    });
}

} // namespace
} // namespace Orvane::Testing
