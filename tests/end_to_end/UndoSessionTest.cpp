// SPDX-License-Identifier: MIT
#include "end_to_end/TownWindow.h"
#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "store/opening/LayerStores.h"

#include <QComboBox>

namespace Orvane {

using namespace Testing;

namespace {

using testing::Contains;
using testing::Not;

constexpr auto Layer = "Fields";

class UndoSession : public TownWindow
{
protected:
    void SetUp() override
    {
        TownWindow::SetUp();
        SettingsStore().Write("DrawStyleEditor::Main", "9000:7000:LAYERS:EXPANDED");
        OpenLayerControl();
    }

    void TearDown() override
    {
        if (Form())
            Form()->close();
    }

    void Undo() { Trigger("actUndo"); }
    void Redo() { Trigger("actRedo"); }
    QString UndoText() { return m_window->findChild<QAction*>("actUndo")->toolTip(); }
    bool CanUndo() { return m_window->findChild<QAction*>("actUndo")->isEnabled(); }

    static QCheckBox& VisibleBox() { return *Find(Form(), "chkVisible").findChild<QCheckBox*>(); }
    static bool IsTicked() { return VisibleBox().isChecked(); }

    static QString CurrentLayer()
    {
        return Find<QTreeView>(Form(), "tvLayers2").currentIndex().data().toString();
    }

    static void ClickGroup(const QString& name)
    {
        auto& tree = Find<QTreeView>(Form(), "tvLayers1");
        const QModelIndexList found = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, name);
        ASSERT_EQ(found.size(), 1);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(found[0]).center());
    }

    QImage Map()
    {
        MapCanvas& canvas = m_window->Canvas();
        QApplication::processEvents(); // what a step changed is read together
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return !canvas.Picture().IsBusy() && canvas.Picture().ImageView() == canvas.View(); }));
        return canvas.grab().toImage();
    }
};

} // namespace

TEST_F(UndoSession, AnAppliedChangeGoesBackInMapPanelAndFile)
{
    const QImage before = Map();
    SwitchVisible(Layer);
    const QImage after = Map();
    EXPECT_NE(after, before);
    EXPECT_EQ(UndoText(), "Undo Change \"Fields\"");
    Undo();
    EXPECT_EQ(Map(), before);
    EXPECT_TRUE(IsTicked());
    EXPECT_TRUE(ToBoolean(Stored(Layer, "Visible")));
    EXPECT_EQ(CurrentLayer(), Layer);
    Redo();
    EXPECT_EQ(Map(), after);
    EXPECT_FALSE(IsTicked());
}

TEST_F(UndoSession, EverythingSinceTheLayerControlOpenedGoesBackAndComesAgainInOneStep)
{
    const QImage before = Map();
    SwitchVisible(Layer);
    SwitchVisible("Forest");
    const QImage after = Map();
    auto* action = m_window->findChild<QAction*>("actUndoOpening");
    EXPECT_TRUE(action->text().endsWith("(2)"));
    Trigger("actUndoOpening");
    EXPECT_EQ(Map(), before);
    EXPECT_FALSE(action->isEnabled());
    Redo();
    EXPECT_EQ(Map(), after);
    EXPECT_EQ(UndoText(), "Undo 2 Steps");
}

TEST_F(UndoSession, AChangeOfSeveralLayersIsOneStep)
{
    auto& tree = Find<QTreeView>(Form(), "tvLayers2");
    ClickLayer(Form(), Listed(Form()).first());
    QTest::keyClick(&tree, Qt::Key_A, Qt::ControlModifier);
    const int layers = tree.model()->rowCount();
    const int locked = Count("Layers WHERE locked");
    auto* box = Find(Form(), "chkLocked").findChild<QCheckBox*>();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    Press(Form(), "cmdApply");
    EXPECT_NE(Count("Layers WHERE locked"), locked);
    EXPECT_EQ(UndoText(), QStringLiteral("Undo Change %1 Layers").arg(layers));
    Undo();
    EXPECT_EQ(Count("Layers WHERE locked"), locked);
    EXPECT_EQ(tree.selectionModel()->selectedIndexes().size(), layers);
}

TEST_F(UndoSession, SeveralDeletedLayersComeBackInOneStep)
{
    auto& tree = Find<QTreeView>(Form(), "tvLayers2");
    const int layers = tree.model()->rowCount();
    ClickLayer(Form(), Listed(Form()).first());
    QTest::keyClick(&tree, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&tree, Qt::Key_Down, Qt::ShiftModifier);
    MessageBoxRobot user{BoxKey::Yes};
    QTest::keyClick(&tree, Qt::Key_Delete);
    EXPECT_EQ(user.Only().text, "Delete 3 layers?");
    EXPECT_EQ(tree.model()->rowCount(), layers - 3);
    EXPECT_EQ(UndoText(), "Undo Delete 3 Layers");
    Undo();
    EXPECT_EQ(tree.model()->rowCount(), layers);
}

TEST_F(UndoSession, TheKeysWorkInTheLayerControl)
{
    SwitchVisible(Layer);
    Form()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Form()));
    QTest::keyClick(&Find(Form(), "tvLayers2"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(ToBoolean(Stored(Layer, "Visible")));
    QTest::keyClick(&Find(Form(), "tvLayers2"), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_FALSE(ToBoolean(Stored(Layer, "Visible")));
}

TEST_F(UndoSession, TheOtherKeysWorkInTheLayerControlToo)
{
    SwitchVisible(Layer);
    Form()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Form()));
    const double before = m_window->Canvas().ScaleDenominator();
    QTest::keyClick(&Find(Form(), "tvLayers2"), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_LT(m_window->Canvas().ScaleDenominator(), before);
}

TEST_F(UndoSession, EditsThatAreNotAppliedAreNotLost)
{
    SwitchVisible(Layer);
    ClickVisible(Form());
    ASSERT_TRUE(IsTicked());
    MessageBoxRobot user{BoxKey::Enter};
    Undo();
    EXPECT_TRUE(user.Only().text.contains("not applied")) << qPrintable(user.Only().text);
    EXPECT_TRUE(IsTicked());
    EXPECT_TRUE(Find(Form(), "cmdApply").isEnabled());
    EXPECT_TRUE(CanUndo());
    Press(Form(), "cmdCancel");
    Undo();
    EXPECT_TRUE(ToBoolean(Stored(Layer, "Visible")));
}

TEST_F(UndoSession, AGroupGoesBackAtOnce)
{
    ClickTab(Form(), 1);
    const auto group = Database().OpenQuery(
        "SELECT LayerGroups.Name FROM LayerGroups JOIN LayerGroupMembers ON GroupID = ID"
        " JOIN Layers USING (LayerID) WHERE Layers.Name = ?1",
        {QString(Layer)});
    const int visible = Count("Layers WHERE Visible");
    ClickGroup(ToText(group->Field("Name")));
    for (int click = 0; click < 2 && VisibleBox().checkState() != Qt::Unchecked; ++click)
        ClickVisible(Form());
    Press(Form(), "cmdApply");
    ASSERT_LT(Count("Layers WHERE Visible"), visible - 1);
    Undo();
    EXPECT_EQ(Count("Layers WHERE Visible"), visible);
    EXPECT_FALSE(CanUndo());
}

TEST_F(UndoSession, ARenamedLayerIsListedUnderItsOldName)
{
    ClickLayer(Form(), Layer);
    auto& tree = Find<QTreeView>(Form(), "tvLayers2");
    QTest::keyClick(&tree, Qt::Key_F2);
    auto* name = tree.findChild<QLineEdit*>();
    ASSERT_NE(name, nullptr);
    name->setText("Green Acres");
    QTest::keyClick(name, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return CanUndo(); }));
    EXPECT_THAT(Listed(Form()), Contains("Green Acres"));
    Undo();
    EXPECT_THAT(Listed(Form()), Contains(Layer));
    EXPECT_THAT(Listed(Form()), Not(Contains("Green Acres")));
    EXPECT_EQ(CurrentLayer(), Layer);
}

TEST_F(UndoSession, ADeletedLayerComesBackWithItsFeatures)
{
    const QImage before = Map();
    ClickLayer(Form(), Layer);
    const int members = Count("LayerGroupMembers");
    {
        MessageBoxRobot user{BoxKey::Yes};
        Press(Form(), "cmdDeleteLayer");
        EXPECT_TRUE(user.Only().text.contains(Layer));
    }
    EXPECT_THAT(Listed(Form()), Not(Contains(Layer)));
    EXPECT_NE(CurrentLayer(), "");
    EXPECT_NE(Map(), before);
    Undo();
    EXPECT_THAT(Listed(Form()), Contains(Layer));
    EXPECT_EQ(Count("LayerGroupMembers"), members);
    EXPECT_EQ(Map(), before);
    Redo();
    EXPECT_THAT(Listed(Form()), Not(Contains(Layer)));
}

TEST_F(UndoSession, ADeletedSchemeIsBackAndCurrentAtOnce)
{
    ClickTab(Form(), 3);
    AnswerPrompt("Night");
    Press(Form(), "cmdNew");
    auto& schemes = Find<QComboBox>(Form(), "cmbScheme");
    ASSERT_EQ(schemes.currentText(), "Night");
    {
        MessageBoxRobot user{BoxKey::Yes};
        Press(Form(), "cmdDelete");
    }
    ASSERT_EQ(schemes.count(), 1);
    EXPECT_EQ(UndoText(), "Undo Delete Scheme \"Night\"");
    Undo();
    EXPECT_EQ(schemes.count(), 2);
    EXPECT_EQ(schemes.currentText(), "Night");
    Undo();
    EXPECT_EQ(schemes.count(), 1);
    EXPECT_FALSE(CanUndo());
}

TEST_F(UndoSession, OpenedDataGoAndComeBackWithTheirFeatures)
{
    Form()->close();
    const DataFolder data;
    const QImage before = Map();
    const int layers = Count("Layers");
    const int groups = Count("LayerGroups");
    m_window->AddData({data.WriteSquare("square.geojson")});
    m_window->Canvas().ZoomToAll();
    const QImage after = Map();
    EXPECT_EQ(UndoText(), "Undo Open Map Data");
    Undo();
    EXPECT_EQ(Count("Layers"), layers);
    EXPECT_EQ(Count("LayerGroups"), groups);
    EXPECT_EQ(Count("LayerSources"), layers);
    Redo();
    EXPECT_EQ(Count("Layers"), layers + 1);
    EXPECT_EQ(Map(), after);
}

TEST_F(UndoSession, AnotherMapHasAHistoryOfItsOwn)
{
    SwitchVisible(Layer);
    EXPECT_TRUE(CanUndo());
    m_window->OpenMap(MakeTown(m_folder, "other.orvane"));
    EXPECT_FALSE(CanUndo());
}

TEST_F(UndoSession, WhatAnotherProgramChangedIsNotTouched)
{
    SwitchVisible(Layer);
    {
        const auto other = LayerStores::Open(MapPath());
        other->Execute("UPDATE Layers SET Visible = NULL WHERE Name = 'Fields'");
    }
    MessageBoxRobot user{BoxKey::Enter};
    Undo();
    EXPECT_TRUE(user.Only().text.contains("another program")) << qPrintable(user.Only().text);
    EXPECT_TRUE(Stored(Layer, "Visible").IsNull());
    EXPECT_FALSE(CanUndo());
}

} // namespace Orvane
