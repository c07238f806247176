// SPDX-License-Identifier: MIT
#include "end_to_end/TownWindow.h"
#include "hostkit/schemes/LayerSchemes.h"

#include <QComboBox>
#include <QFileDialog>
#include <QListView>
#include <QStatusBar>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto Layer = "Fields";

class SchemesOfTheMap : public TownWindow
{
protected:
    void SetUp() override
    {
        TownWindow::SetUp();
        Client().CreateScheme("Night");
        m_day = Client().GetSchemeNames().value(1);
        Client().LoadScheme(m_day);
    }

    IStyleEditorClient& Client() { return m_window->Session().Client(); }
    QString Status() { return LabelText("lblScheme"); }
    bool IsVisible() { return ToBoolean(Stored(Layer, "Visible")); }

    void Change()
    {
        SwitchVisible(Layer);
        Form()->close();
    }

    // Names the file in the dialog that opens next.
    static void AnswerFile(const QString& path)
    {
        WhenAsked([path](QDialog& dialog) {
            // Without the focus, the line would leave the proposed file selected.
            dialog.findChild<QListView*>("listView")->clearSelection();
            auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
            line->setText(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }

    void Export(const QString& file)
    {
        AnswerFile(PathOf(file));
        Choose("menuSchemes", "Export");
    }

    void Import(const QString& file)
    {
        AnswerFile(PathOf(file));
        Choose("menuSchemes", "Import");
    }

    // The entry of the menu that is marked as current.
    QString Marked()
    {
        auto* menu = m_window->findChild<QMenu*>("menuSchemes");
        emit menu->aboutToShow();
        QStringList marked;
        for (const QAction* action : menu->actions()) {
            if (action->isChecked())
                marked << action->text();
        }
        return marked.join('|');
    }

    QString m_day; // the name of the first scheme
};

} // namespace

TEST_F(SchemesOfTheMap, TheStatusBarShowsTheCurrentOne)
{
    EXPECT_EQ(Status(), "Scheme: " + m_day);
}

TEST_F(SchemesOfTheMap, AnAppliedChangeShowsThatItIsNotSaved)
{
    Change();
    EXPECT_EQ(Status(), "Scheme: " + m_day + " *");
    EXPECT_TRUE(m_window->findChild<QLabel*>("lblScheme")->accessibleName().contains("1"));
    Change();
    EXPECT_EQ(Status(), "Scheme: " + m_day);
}

TEST_F(SchemesOfTheMap, TheMenuListsThemWithAMarkAtTheCurrentOne)
{
    const QStringList entries = Entries("menuSchemes");
    EXPECT_EQ(entries.mid(0, 2), QStringList({"Night", m_day}));
    EXPECT_EQ(Marked(), m_day);
}

TEST_F(SchemesOfTheMap, SwitchingWithNothingUnsavedAsksNothing)
{
    MessageBoxRobot nobody{};
    Choose("menuSchemes", "Night");
    EXPECT_EQ(Status(), "Scheme: Night");
    EXPECT_EQ(Marked(), "Night");
}

TEST_F(SchemesOfTheMap, SwitchingFromUnsavedChangesAsksAndEscapeStays)
{
    Change();
    MessageBoxRobot user{BoxKey::Escape};
    Choose("menuSchemes", "Night");
    EXPECT_TRUE(user.Only().text.contains(m_day) && user.Only().text.contains("Night"));
    EXPECT_EQ(Status(), "Scheme: " + m_day + " *");
    EXPECT_FALSE(IsVisible());
}

TEST_F(SchemesOfTheMap, SavingOnTheWayKeepsTheChangesInTheirScheme)
{
    Change();
    {
        MessageBoxRobot user{BoxKey::Enter}; // Save
        Choose("menuSchemes", "Night");
    }
    EXPECT_EQ(Status(), "Scheme: Night");
    EXPECT_TRUE(IsVisible());
    Choose("menuSchemes", m_day);
    EXPECT_FALSE(IsVisible());
}

TEST_F(SchemesOfTheMap, SwitchingShowsTheNewValuesInTheOpenEditor)
{
    Change();
    Client().SaveScheme(m_day);
    OpenLayerControl();
    Choose("menuSchemes", "Night");
    ASSERT_TRUE(Form());
    ClickLayer(Form(), Layer);
    EXPECT_TRUE(Find(Form(), "chkVisible").findChild<QCheckBox*>()->isChecked());
    ClickTab(Form(), 3);
    EXPECT_EQ(Find<QComboBox>(Form(), "cmbScheme").currentText(), "Night");
    Form()->close();
}

TEST_F(SchemesOfTheMap, SwitchingFromTheMenuLeavesTheKeysToTheMainWindow)
{
    OpenLayerControl();
    const auto hasKeys = [this] { return QApplication::activeWindow() == m_window.get(); };
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor(hasKeys));
    Choose("menuSchemes", "Night");
    ASSERT_TRUE(Form());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Form()));
    QApplication::processEvents();
    EXPECT_TRUE(hasKeys());
    Form()->close();
}

TEST_F(SchemesOfTheMap, SwitchingAsksAboutEditsThatWereNotApplied)
{
    OpenLayerControl();
    ClickLayer(Form(), Layer);
    ClickVisible(Form());
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter}; // apply, and save
    Choose("menuSchemes", "Night");
    ASSERT_EQ(user.Boxes().size(), 2u);
    EXPECT_TRUE(user.Boxes()[0].text.contains("apply")) << qPrintable(user.Boxes()[0].text);
    EXPECT_TRUE(user.Boxes()[1].text.contains(m_day)) << qPrintable(user.Boxes()[1].text);
    EXPECT_EQ(Status(), "Scheme: Night");
    EXPECT_TRUE(IsVisible());
    Form()->close();
    Choose("menuSchemes", m_day);
    EXPECT_FALSE(IsVisible());
}

TEST_F(SchemesOfTheMap, SaveAndRevertAskFirst)
{
    Change();
    {
        MessageBoxRobot user{BoxKey::No, BoxKey::No};
        Choose("menuSchemes", "Save Scheme");
        Choose("menuSchemes", "Revert");
    }
    EXPECT_EQ(Status(), "Scheme: " + m_day + " *");
    {
        MessageBoxRobot user{BoxKey::Yes};
        Choose("menuSchemes", "Revert");
    }
    EXPECT_TRUE(IsVisible());
    EXPECT_EQ(Status(), "Scheme: " + m_day);
    Change();
    MessageBoxRobot user{BoxKey::Yes};
    Choose("menuSchemes", "Save Scheme");
    EXPECT_EQ(Status(), "Scheme: " + m_day);
    EXPECT_FALSE(IsVisible());
}

TEST_F(SchemesOfTheMap, LayersThatTheLoadedSchemeDoesNotKnowAreReported)
{
    Database().Execute("INSERT INTO Layers (Name, Code) VALUES ('Later', 9000)");
    Client().SaveScheme(m_day);
    Choose("menuSchemes", "Night");
    const QString message = m_window->statusBar()->currentMessage();
    EXPECT_TRUE(message.contains("Night") && message.contains(": 1")) << qPrintable(message);
    EXPECT_EQ(Status(), "Scheme: Night *");
}

TEST_F(SchemesOfTheMap, ASchemeWanderedThroughAFileIsTheSameScheme)
{
    Client().LoadScheme("Night");
    Change();
    Client().SaveScheme("Night");
    Export("night.json");
    ASSERT_TRUE(QFile::exists(PathOf("night.json")));
    Client().LoadScheme(m_day);
    Client().DeleteScheme("Night");
    MessageBoxRobot user{BoxKey::Enter};
    Import("night.json");
    EXPECT_TRUE(user.Only().text.contains("Night"));
    EXPECT_TRUE(IsVisible());
    Choose("menuSchemes", "Night");
    EXPECT_FALSE(IsVisible());
}

TEST_F(SchemesOfTheMap, AnImportReplacesASchemeOnlyOnYes)
{
    Client().LoadScheme("Night");
    Export("night.json");
    Change();
    Client().SaveScheme("Night");
    MessageBoxRobot user{BoxKey::No};
    Import("night.json");
    EXPECT_TRUE(user.Only().text.contains("already"));
    EXPECT_EQ(Status(), "Scheme: Night");
}

TEST_F(SchemesOfTheMap, ADamagedFileIsToldAndChangesNothing)
{
    QFile file(PathOf("night.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"format\": \"orvane-scheme\", \"version\": 1, \"name\": \"Night\", \"layers\": [{}]}");
    file.close();
    const QStringList before = Client().GetSchemeNames();
    MessageBoxRobot user{BoxKey::Enter};
    Import("night.json");
    EXPECT_TRUE(user.Only().text.contains("night.json")) << qPrintable(user.Only().text);
    EXPECT_EQ(Client().GetSchemeNames(), before);
    EXPECT_EQ(Status(), "Scheme: " + m_day);
}

TEST_F(SchemesOfTheMap, NewMapsBeginWithTheSchemesOfTheStartupDatabase)
{
    Change();
    Client().SaveScheme(m_day);
    Client().SaveSchemesToStartup();
    const QString data = ToText(Database().OpenRecordset("SELECT Path FROM LayerSources")->Field("Path"));
    const QString path = QFileInfo(MapPath()).absoluteDir().absoluteFilePath(data);
    m_window->OpenMap(MapPath());
    Client().LoadScheme("Night");
    auto fresh = std::make_unique<MainWindow>();
    fresh->AddData({path});
    IStyleEditorClient& client = fresh->Session().Client();
    EXPECT_TRUE(client.GetSchemeNames().contains("Night"));
    EXPECT_EQ(fresh->findChild<QLabel*>("lblScheme")->text(), "Scheme: " + client.GetCurrentScheme());
}

TEST_F(SchemesOfTheMap, TheStatusBarTellsThatTheSchemesWereSavedForNewMaps)
{
    OpenLayerControl();
    ClickTab(Form(), 3);
    EXPECT_TRUE(Find(Form(), "cmdSaveStartup").toolTip().contains("new maps"));
    const MessageBoxRobot user{BoxKey::Yes};
    Press(Form(), "cmdSaveStartup");
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "All schemes of this map were saved for new maps.");
    EXPECT_TRUE(QFile::exists(StartupFile()));
    Form()->close();
}

TEST_F(SchemesOfTheMap, ANewMapsFirstDataAreInItsScheme)
{
    auto fresh = std::make_unique<MainWindow>();
    const QString data = ToText(Database().OpenRecordset("SELECT Path FROM LayerSources")->Field("Path"));
    fresh->AddData({QFileInfo(MapPath()).absoluteDir().absoluteFilePath(data)});
    EXPECT_EQ(fresh->findChild<QLabel*>("lblScheme")->text(), "Scheme: Standard");
}

TEST_F(SchemesOfTheMap, TheOneForTheOpeningIsAppliedOnceAndCanBeUndone)
{
    Change();
    Client().SaveScheme("Night");
    LayerSchemes(Database()).SetAtOpening("Night");
    Change();
    ASSERT_TRUE(IsVisible());
    m_window->OpenMap(MapPath());
    EXPECT_FALSE(IsVisible());
    EXPECT_EQ(Status(), "Scheme: Night");
    EXPECT_EQ(
        m_window->statusBar()->currentMessage(), "The scheme \"Night\" was applied when the map was opened.");
    Trigger("actUndo");
    EXPECT_TRUE(IsVisible());
    EXPECT_EQ(Status(), "Scheme: " + m_day);
}

TEST_F(SchemesOfTheMap, AMapThatIsInTheSchemeForTheOpeningIsNotChanged)
{
    LayerSchemes(Database()).SetAtOpening(m_day);
    m_window->statusBar()->clearMessage();
    m_window->OpenMap(MapPath());
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "");
    EXPECT_FALSE(m_window->findChild<QAction*>("actUndo")->isEnabled());
}

TEST_F(SchemesOfTheMap, SavingTheMapUnderAnotherNameAppliesNone)
{
    LayerSchemes(Database()).SetAtOpening("Night");
    AnswerFile(PathOf("other.orvane"));
    Trigger("actSaveMapAs");
    EXPECT_TRUE(QFile::exists(PathOf("other.orvane")));
    EXPECT_EQ(Status(), "Scheme: " + m_day);
}

} // namespace Orvane
