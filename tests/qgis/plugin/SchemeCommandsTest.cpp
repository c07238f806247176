// SPDX-License-Identifier: MIT
#include "qgis/plugin/SchemeCommands.h"

#include "qgis/plugin/SessionFixture.h"
#include "support/MessageBoxRobot.h"

#include <QDialog>
#include <QListWidget>
#include <QTimer>

namespace Orvane::Testing {

namespace {

class SchemeCommandsTest : public SessionFixture
{
protected:
    void AddTheme(const QString& name)
    {
        project.mapThemeCollection()->insert(name, QgsMapThemeCollection::MapThemeRecord());
    }

    /// Answers the dialog with the list of themes, of which the unwanted ones are unticked first.
    void ImportThemes(const QStringList& unwanted, bool accepts = true)
    {
        QTimer::singleShot(0, &commands, [&] {
            auto* dialog = window.findChild<QDialog*>("dlgImportThemes");
            ASSERT_TRUE(dialog);
            auto* list = dialog->findChild<QListWidget*>("lstThemes");
            for (const QString& theme : unwanted)
                list->findItems(theme, Qt::MatchExactly).at(0)->setCheckState(Qt::Unchecked);
            accepts ? dialog->accept() : dialog->reject();
        });
        commands.ImportThemes();
    }

    QWidget window;
    SchemeCommands commands{window, session};
    QSignalSpy done{&commands, &SchemeCommands::Done};
};

TEST_F(SchemeCommandsTest, ChosenThemesBecomeSchemesInOneStep)
{
    for (const char* name : {"Day", "Evening", "Night"})
        AddTheme(name);
    ImportThemes({"Evening"});
    EXPECT_EQ(Host().GetSchemeNames(), (QStringList{"Day", "Night", "Standard"}));
    EXPECT_EQ(History().UndoText(), "Undo Import Map Themes");
    EXPECT_FALSE(project.readEntry("Orvane", "LayerSchemes").isEmpty());
    EXPECT_EQ(done.count(), 1);
    History().Undo();
    EXPECT_EQ(Host().GetSchemeNames(), QStringList{"Standard"});
    Host().LoadScheme("Standard");
}

TEST_F(SchemeCommandsTest, WithoutThemesTheUserIsTold)
{
    commands.ImportThemes();
    ASSERT_EQ(done.count(), 1);
    EXPECT_EQ(done.at(0).at(0).toString(), "This project has no map themes.");
}

TEST_F(SchemeCommandsTest, ACancelledImportDoesNothing)
{
    AddTheme("Night");
    ImportThemes({}, false);
    EXPECT_EQ(Host().GetSchemeNames(), QStringList{"Standard"});
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(SchemeCommandsTest, ASchemeIsReplacedOnlyIfTheUserAgrees)
{
    Host().CreateScheme("Night");
    AddTheme("Night"); // without a layer
    for (const bool agrees : {false, true}) {
        const MessageBoxRobot user{agrees ? BoxKey::Yes : BoxKey::No};
        ImportThemes({});
        EXPECT_THAT(user.Only().text.toStdString(), testing::HasSubstr("\"Night\" already exists"));
        Host().LoadScheme("Night");
        EXPECT_EQ(ToBoolean(Stored(roads, "Visible")), !agrees);
    }
}

TEST_F(SchemeCommandsTest, CancelInTheQuestionImportsNothing)
{
    Host().CreateScheme("Night");
    for (const char* name : {"Day", "Night"})
        AddTheme(name);
    const MessageBoxRobot user{BoxKey::Escape};
    ImportThemes({});
    EXPECT_EQ(Host().GetSchemeNames(), (QStringList{"Night", "Standard"}));
}

TEST_F(SchemeCommandsTest, TheCurrentSchemeBecomesAThemeAndIsUndone)
{
    Host().CreateScheme("Night");
    commands.ExportTheme();
    EXPECT_TRUE(project.mapThemeCollection()->hasMapTheme("Night"));
    EXPECT_EQ(History().UndoText(), "Undo Export Map Theme \"Night\"");
    History().Undo();
    EXPECT_FALSE(project.mapThemeCollection()->hasMapTheme("Night"));
}

TEST_F(SchemeCommandsTest, AThemeIsReplacedOnlyIfTheUserAgrees)
{
    Host().CreateScheme("Night");
    AddTheme("Night");
    for (const bool agrees : {false, true}) {
        const MessageBoxRobot user{agrees ? BoxKey::Yes : BoxKey::No};
        commands.ExportTheme();
        EXPECT_THAT(user.Only().text.toStdString(), testing::HasSubstr("\"Night\" already exists"));
        EXPECT_EQ(project.mapThemeCollection()->mapThemeVisibleLayers("Night").isEmpty(), !agrees);
    }
}

} // namespace

} // namespace Orvane::Testing
