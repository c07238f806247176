// SPDX-License-Identifier: MIT
#include "end_to_end/TownWindow.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

namespace Orvane {

using namespace Testing;

namespace {

class Themes : public TownWindow
{
protected:
    // A theme of all layers but the fields.
    void MakeTheme(const QString& name)
    {
        Database().Execute("UPDATE Layers SET Visible = (Name <> 'Fields')");
        AnswerPrompt(name);
        Choose("menuThemes", "New Theme");
    }

    static QWidget* Editor(const QString& theme) { return Form("Theme Control: " + theme); }
};

} // namespace

TEST_F(Themes, ANewThemeIsOpenedAtOnceUnderItsName)
{
    MakeTheme("Water & Land");
    QWidget* editor = Editor("Water & Land");
    ASSERT_TRUE(editor);
    EXPECT_TRUE(dynamic_cast<IStyleEditorForm*>(editor)->EditorID().startsWith("Theme:"));
    EXPECT_EQ(Find<QTabBar>(editor, "tsLists").currentIndex(), 1); // the layers
    editor->close();
}

TEST_F(Themes, ItsListShowsItsLayersOnly)
{
    MakeTheme("Town");
    const QStringList listed = Listed(Editor("Town"));
    EXPECT_FALSE(listed.contains("Fields"));
    EXPECT_EQ(listed.size(), Count("Layers WHERE Visible AND Code > -2"));
    Editor("Town")->close();
}

TEST_F(Themes, AnEditorOnAThemeChangesTheLayers)
{
    MakeTheme("Town");
    const QString layer = Listed(Editor("Town")).first();
    ClickLayer(Editor("Town"), layer);
    ClickVisible(Editor("Town"));
    Press(Editor("Town"), "cmdApply");
    EXPECT_FALSE(ToBoolean(Stored(layer, "Visible")));
    Editor("Town")->close();
}

TEST_F(Themes, LayersAndThemesAreEditedSideBySide)
{
    MakeTheme("Town");
    OpenLayerControl();
    ASSERT_TRUE(Form());
    EXPECT_TRUE(Editor("Town"));
    EXPECT_TRUE(Listed(Form()).contains("Fields"));
    Form()->close();
    EXPECT_TRUE(Editor("Town"));
    Editor("Town")->close();
}

TEST_F(Themes, AStoredThemeIsOpenedFromTheMenuOfTheMapThatIsOpenedAgain)
{
    MakeTheme("Town");
    Editor("Town")->close();
    m_window->OpenMap(MapPath());
    Choose("menuThemes", "Town");
    ASSERT_TRUE(Editor("Town"));
    EXPECT_FALSE(Listed(Editor("Town")).contains("Fields"));
    Editor("Town")->close();
}

TEST_F(Themes, AThemeThatIsOpenComesToTheFrontAndKeepsItsEdits)
{
    MakeTheme("Town");
    QWidget* editor = Editor("Town");
    ClickLayer(editor, Listed(editor).first());
    ClickVisible(editor);
    Choose("menuThemes", "Town");
    EXPECT_EQ(Editor("Town"), editor);
    EXPECT_TRUE(Find(editor, "cmdApply").isEnabled());
    Press(editor, "cmdCancel");
    editor->close();
}

TEST_F(Themes, ANameThatIsTakenIsReplacedOnlyOnYes)
{
    MakeTheme("Town");
    Database().Execute("UPDATE Layers SET Visible = (Name = 'Fields')");
    {
        MessageBoxRobot user{BoxKey::No};
        AnswerPrompt("Town");
        Choose("menuThemes", "New Theme");
        EXPECT_FALSE(Listed(Editor("Town")).contains("Fields"));
    }
    MessageBoxRobot user{BoxKey::Yes};
    AnswerPrompt("Town");
    Choose("menuThemes", "New Theme");
    EXPECT_EQ(Listed(Editor("Town")), QStringList("Fields"));
    Editor("Town")->close();
}

TEST_F(Themes, ABlankNameIsRefusedAndCancellingMakesNone)
{
    MessageBoxRobot user{BoxKey::Enter};
    user.BeforeAnswer([](QMessageBox&) { WhenAsked([](QDialog& prompt) { prompt.reject(); }); });
    AnswerPrompt("   ");
    Choose("menuThemes", "New Theme");
    EXPECT_TRUE(user.Only().text.contains("Enter a name."));
    EXPECT_TRUE(Entries("menuThemes").contains("No themes yet"));
}

TEST_F(Themes, WithoutAVisibleLayerThereIsNothingToMakeAThemeOf)
{
    Database().Execute("UPDATE Layers SET Visible = FALSE");
    MessageBoxRobot user{BoxKey::Enter};
    Choose("menuThemes", "New Theme");
    EXPECT_TRUE(user.Only().text.contains("visible"));
}

TEST_F(Themes, DeletingAsksClosesItsEditorAndKeepsTheLayers)
{
    MakeTheme("Town");
    const int layers = Count("Layers");
    {
        MessageBoxRobot user{BoxKey::No};
        Entries("menuThemes");
        Choose("menuDeleteTheme", "Town");
        EXPECT_TRUE(Editor("Town"));
    }
    MessageBoxRobot user{BoxKey::Yes};
    Entries("menuThemes");
    Choose("menuDeleteTheme", "Town");
    EXPECT_TRUE(user.Only().text.contains("\"Town\""));
    EXPECT_FALSE(Editor("Town"));
    EXPECT_TRUE(Entries("menuThemes").contains("No themes yet"));
    EXPECT_EQ(Count("Layers"), layers);
}

TEST_F(Themes, ADeletedThemeComesBackByUndo)
{
    MakeTheme("Town");
    const QStringList layers = Listed(Editor("Town"));
    MessageBoxRobot user{BoxKey::Yes};
    Entries("menuThemes");
    Choose("menuDeleteTheme", "Town");
    Trigger("actUndo");
    Choose("menuThemes", "Town");
    ASSERT_TRUE(Editor("Town"));
    EXPECT_EQ(Listed(Editor("Town")), layers);
    Editor("Town")->close();
}

TEST_F(Themes, ARenamedThemeIsOpenUnderItsNewNameAndUnderTheOldOneAfterUndo)
{
    MakeTheme("Town");
    AnswerPrompt("Village");
    Entries("menuThemes");
    Choose("menuRenameTheme", "Town");
    EXPECT_FALSE(Editor("Town"));
    ASSERT_TRUE(Editor("Village"));
    Trigger("actUndo");
    EXPECT_TRUE(QTest::qWaitFor([] { return Editor("Town") && !Editor("Village"); }));
    Editor("Town")->close();
}

TEST_F(Themes, ANameThatAnotherThemeHasIsRefused)
{
    MakeTheme("Town");
    Editor("Town")->close();
    MakeTheme("Village");
    MessageBoxRobot user{BoxKey::Enter};
    AnswerPrompt("Town");
    Entries("menuThemes");
    Choose("menuRenameTheme", "Village");
    EXPECT_TRUE(user.Only().text.contains("\"Town\""));
    EXPECT_TRUE(Editor("Village"));
    Editor("Village")->close();
}

TEST_F(Themes, ALayerThatIsDeletedLeavesTheOpenEditor)
{
    MakeTheme("Town");
    QWidget* editor = Editor("Town");
    const QString layer = Listed(editor).first();
    MessageBoxRobot user{BoxKey::Yes};
    ClickLayer(editor, layer);
    Press(editor, "cmdDeleteLayer");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Listed(editor).contains(layer); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(Editor("Town"), editor) << "it was not closed";
    editor->close();
}

TEST_F(Themes, UndoingANewThemeClosesItsEditor)
{
    MakeTheme("Town");
    Trigger("actUndo");
    EXPECT_TRUE(QTest::qWaitFor([] { return !Editor("Town"); }));
    EXPECT_TRUE(Entries("menuThemes").contains("No themes yet"));
}

TEST_F(Themes, ClosingTheMapClosesTheEditorsAndAsksAboutTheEditsOfEach)
{
    MakeTheme("Town");
    QWidget* editor = Editor("Town");
    const QString layer = Listed(editor).first();
    ClickLayer(editor, layer);
    ClickVisible(editor);
    OpenLayerControl();
    MessageBoxRobot user{BoxKey::Yes};
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(user.Boxes().size(), 1u);
    EXPECT_FALSE(ToBoolean(Stored(layer, "Visible")));
    EXPECT_FALSE(Editor("Town"));
    EXPECT_FALSE(Form());
}

TEST_F(Themes, EndingTheProgramWithAnOpenEditorIsHarmless)
{
    MakeTheme("Town");
    OpenLayerControl();
    m_window.reset();
    EXPECT_EQ(StyleEditorPlugin().Library().GetStyleEditor("Main"), nullptr);
}

TEST_F(Themes, NewDataKeepTheEditorsOpen)
{
    MakeTheme("Town");
    OpenLayerControl();
    MessageBoxRobot user{BoxKey::Enter};
    m_window->AddData({PathOf("gone.gpkg")});
    EXPECT_TRUE(Form());
    EXPECT_TRUE(Editor("Town"));
    Form()->close();
    Editor("Town")->close();
}

} // namespace Orvane
