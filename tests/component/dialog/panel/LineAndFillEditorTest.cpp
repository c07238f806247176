// SPDX-License-Identifier: MIT
#include "component/dialog/panel/LineAndFillEditor.h"

#include "component/dialog/EditorFixture.h"
#include "ovctrls/OvCombo.h"
#include "samples/BgrColour.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QCoreApplication>
#include <QLabel>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::Contains;
using testing::IsEmpty;

class LineAndFillEditorTest : public EditorFixture
{
protected:
    LineAndFillEditorTest()
    {
        host.AddLayer(
            {.id = 1,
             .name = "Roads",
             .color = qint32(0x0000FF),
             .fillForeColor = qint32(0x00FF00),
             .fillBackColor = qint32(0xFF0000),
             .outlineStyle = qint32(0),
             .fillStyle = qint32(3),
             .lineThickness = qint32(-3)});
        host.AddLayer(
            {.id = 2,
             .name = "Rivers",
             .color = qint32(0xFFFF0000),
             .fillForeColor = TransparentColour,
             .fillBackColor = qint32(0x0080FF),
             .outlineStyle = qint32(2),
             .fillStyle = qint32(15),
             .lineThickness = qint32(0)});
        StoreViewState("9000:7000:GROUPS:EXPANDED");
        host.AddGroup({.id = 10, .name = QString("Transport"), .expanded = true, .members = {1, 2}});
    }

    OvCombo& List(const char* name) { return Find<OvCombo>(name); }
    QString Shown(const char* name) { return List(name).currentText(); }

    // The entry that opens the dialog for another width, colour or style.
    void ChooseCustom(const char* name) { Choose(name, List(name).findText("Custom", Qt::MatchStartsWith)); }

    void Choose(const char* name, int index)
    {
        OvCombo& list = List(name);
        list.showPopup();
        const QModelIndex item = list.model()->index(index, 0);
        list.view()->scrollTo(item);
        QTest::mouseClick(
            list.view()->viewport(), Qt::LeftButton, {}, list.view()->visualRect(item).center());
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(LineAndFillEditorTest, ACancelledCustomWidthLeavesThePanelUnmarked)
{
    Open();
    ClickTab(2);
    ClickLayer("Roads");
    const QString before = Shown("cmbLineStyles");
    host.Shell().OnShowModal = [](QWidget* form) { form->findChild<QAbstractButton*>("cmdCancel")->click(); };
    ChooseCustom("cmbLineStyles");
    EXPECT_EQ(Shown("cmbLineStyles"), before);
    EXPECT_FALSE(IsUnderlined("cmbLineStyles"));
    EXPECT_FALSE(CanApply());
}

TEST_F(LineAndFillEditorTest, ShowsTheLineAndTheFillOfALayer)
{
    Open();
    ClickLayer("Roads");
    EXPECT_EQ(Shown("cmbColor0"), "Red");
    EXPECT_EQ(Shown("cmbColor1"), "Green");
    EXPECT_EQ(Shown("cmbColor2"), "Blue");
    EXPECT_EQ(Shown("cmbLineStyles"), "3 pixels");
    EXPECT_EQ(Shown("cmbFillStyles"), "Pattern 3");
}

TEST_F(LineAndFillEditorTest, ShowsColoursThatTheListLacksAndTransparentOnes)
{
    Open();
    ClickLayer("Rivers");
    EXPECT_EQ(Shown("cmbColor0"), "Blue") << "the flag byte is no colour";
    EXPECT_EQ(Shown("cmbColor1"), "Transparent");
    EXPECT_EQ(Shown("cmbColor2"), "#FF8000");
    EXPECT_EQ(Shown("cmbLineStyles"), "Dotted line");
    EXPECT_EQ(Shown("cmbFillStyles"), "Outline only");
}

TEST_F(LineAndFillEditorTest, ShowsVariousWhereTheLayersOfAGroupDiffer)
{
    Open();
    ClickGroup("Transport");
    for (const char* name : {"cmbColor0", "cmbColor1", "cmbColor2", "cmbFillStyles", "cmbLineStyles"})
        EXPECT_EQ(Shown(name), "[various]") << name;
}

TEST_F(LineAndFillEditorTest, ApplyingAnotherPropertyToAGroupLeavesEachLayersLineAndFill)
{
    Open();
    ClickGroup("Transport");
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "locked"), 1);
    EXPECT_EQ(Stored(1, "Color"), 0x0000FF);
    EXPECT_EQ(Stored(2, "Color"), qint32(0xFFFF0000));
    EXPECT_EQ(Stored(2, "FillForeColor"), TransparentColour);
    EXPECT_EQ(Stored(2, "FillBackColor"), 0x0080FF);
    EXPECT_EQ(Stored(1, "FillStyle"), 3);
    EXPECT_EQ(Stored(2, "FillStyle"), 15);
    EXPECT_EQ(Stored(1, "OutlineStyle"), 0);
    EXPECT_EQ(Stored(2, "OutlineStyle"), 2);
    EXPECT_EQ(Stored(1, "LineThickness"), -3);
}

TEST_F(LineAndFillEditorTest, AppliesTheColoursThatWereChosen)
{
    Open();
    ClickLayer("Rivers");
    Choose("cmbColor0", 5);
    Choose("cmbColor1", 8);
    Choose("cmbColor2", 15);
    Click("cmdApply");
    EXPECT_EQ(Stored(2, "Color"), qint32(0xFF00FF00)) << "the flag byte stays";
    EXPECT_EQ(Stored(2, "FillForeColor"), 0x00FFFF);
    EXPECT_EQ(Stored(2, "FillBackColor"), TransparentColour);
}

TEST_F(LineAndFillEditorTest, AppliesTheLineAndTheFillStyleToAWholeGroup)
{
    Open();
    ClickGroup("Transport");
    Choose("cmbLineStyles", 9);
    Choose("cmbFillStyles", 0);
    Click("cmdApply");
    for (const qint32 layer : {1, 2}) {
        EXPECT_EQ(Stored(layer, "OutlineStyle"), 0);
        EXPECT_EQ(Stored(layer, "LineThickness"), -5);
        EXPECT_EQ(Stored(layer, "FillStyle"), 0);
    }
    EXPECT_EQ(Stored(2, "FillBackColor"), 0x0080FF);
}

TEST_F(LineAndFillEditorTest, AChangedListIsUnderlinedWithItsCaptionAndEnablesApply)
{
    Open();
    ClickLayer("Roads");
    EXPECT_FALSE(CanApply());
    Choose("cmbColor0", 4);
    EXPECT_TRUE(IsUnderlined("cmbColor0"));
    EXPECT_TRUE(IsUnderlined("lblColor0"));
    EXPECT_FALSE(IsUnderlined("cmbColor1"));
    EXPECT_FALSE(IsUnderlined("lblColor1"));
    EXPECT_TRUE(CanApply());
}

TEST_F(LineAndFillEditorTest, ChoosingTheStoredValueAgainRemovesTheLineButLeavesApplyEnabled)
{
    Open();
    ClickLayer("Roads");
    Choose("cmbFillStyles", 0);
    EXPECT_TRUE(IsUnderlined("lblFillStyles"));
    Choose("cmbFillStyles", 4);
    EXPECT_EQ(Shown("cmbFillStyles"), "Pattern 3");
    EXPECT_FALSE(IsUnderlined("cmbFillStyles"));
    EXPECT_FALSE(IsUnderlined("lblFillStyles"));
    EXPECT_TRUE(CanApply());
}

TEST_F(LineAndFillEditorTest, AnotherWidthAloneMarksTheLineList)
{
    Open();
    ClickLayer("Roads");
    Choose("cmbLineStyles", 8);
    EXPECT_TRUE(IsUnderlined("cmbLineStyles"));
    Choose("cmbLineStyles", 7);
    EXPECT_FALSE(IsUnderlined("cmbLineStyles"));
}

TEST_F(LineAndFillEditorTest, CancelShowsTheStoredValuesWithoutMarks)
{
    Open();
    ClickLayer("Roads");
    Choose("cmbColor0", 4);
    Click("cmdCancel");
    EXPECT_EQ(Shown("cmbColor0"), "Red");
    EXPECT_FALSE(IsUnderlined("lblColor0"));
    EXPECT_FALSE(CanApply());
}

TEST_F(LineAndFillEditorTest, EachListCarriesItsSlotInItsTag)
{
    Open();
    EXPECT_EQ(List("cmbColor0").property("Tag").toString(), "8");
    EXPECT_EQ(List("cmbColor1").property("Tag").toString(), "9");
    EXPECT_EQ(List("cmbColor2").property("Tag").toString(), "10");
    EXPECT_EQ(List("cmbFillStyles").property("Tag").toString(), "13");
    EXPECT_EQ(List("cmbLineStyles").property("Tag").toString(), "12");
}

TEST_F(LineAndFillEditorTest, TheListsAreNamedByTheirCaptions)
{
    Open();
    ClickLayer("Roads");
    const auto captionOf = [this](const char* list) {
        const auto labels = QAccessible::queryAccessibleInterface(&List(list))->relations(QAccessible::Label);
        return labels.isEmpty() ? QString() : labels.first().first->text(QAccessible::Name);
    };
    EXPECT_EQ(captionOf("cmbColor0"), "Line colour:");
    EXPECT_EQ(captionOf("cmbColor1"), "Fill colour:");
    EXPECT_EQ(captionOf("cmbColor2"), "Background:");
    EXPECT_EQ(captionOf("cmbLineStyles"), "Line style:");
    EXPECT_EQ(captionOf("cmbFillStyles"), "Fill style:");
}

TEST_F(LineAndFillEditorTest, DrawsWithTheHostsPrefix)
{
    host.styleCommandPrefix = QString("$");
    Open();
    EXPECT_TRUE(List("cmbColor0").List(6).startsWith("$FG=255.$DRB=255:P=255:"));
    EXPECT_EQ(List("cmbFillStyles").List(0), "$UD.");
}

TEST_F(LineAndFillEditorTest, TheSwatchesFitTheListsAsTheyAreShown)
{
    Open();
    ClickLayer("Roads");
    const OvCombo& list = List("cmbColor0");
    const QString extent = QString(",1,%1,%2,0,%2,0,1.").arg(list.width() - 22).arg(list.height() - 7);
    EXPECT_TRUE(list.List(6).endsWith(extent)) << qPrintable(list.List(6)) << qPrintable(extent);
}

TEST_F(LineAndFillEditorTest, AnUnknownFillStyleIsToldAndTheFirstShown)
{
    host.SetLayerColumn(1, "FillStyle", qint32(99));
    const MessageBoxRobot user{BoxKey::Enter};
    Open();
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "Unknown Fill Style!");
    EXPECT_EQ(Shown("cmbFillStyles"), "Solid");
    EXPECT_FALSE(CanApply());
}

TEST_F(LineAndFillEditorTest, AColumnThatHoldsNoNumberIsToldAndNothingIsStored)
{
    host.SetLayerColumn(1, "FillForeColor", QString("green"));
    const MessageBoxRobot user{BoxKey::Enter};
    Open();
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "Roads: FillForeColor 'green' is not a number.");
    EXPECT_FALSE(CanApply());
    Click("chkVisible");
    Click("cmdApply");
    EXPECT_THAT(host.LayerColumn(1, "FillForeColor"), IsValue(QString("green")));
}

TEST_F(LineAndFillEditorTest, AThicknessBeyondTheListIsNamedAndCanBeRepaired)
{
    host.SetLayerColumn(1, "LineThickness", qint32(1639));
    const MessageBoxRobot user{BoxKey::Enter};
    Open();
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "Roads: LineThickness 1639 is too large.");
    EXPECT_EQ(Shown("cmbLineStyles"), "[various]");
    EXPECT_TRUE(IsEnabled("cmdDeleteLayer"));
    EXPECT_FALSE(CanApply());
    Click("chkVisible");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "LineThickness"), 1639) << "the user did not touch it";
    List("cmbLineStyles").setFocus();
    QTest::keyClick(&List("cmbLineStyles"), Qt::Key_Home);
    QTest::keyClick(&List("cmbLineStyles"), Qt::Key_Down);
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "LineThickness"), 0);
}

TEST_F(LineAndFillEditorTest, NullColumnsShowAsVariousAndStayNull)
{
    for (const char* column : {"Color", "FillForeColor", "FillBackColor", "FillStyle", "OutlineStyle"})
        host.SetLayerColumn(1, column, Value::Null());
    Open();
    ClickLayer("Roads");
    for (const char* name : {"cmbColor0", "cmbColor1", "cmbColor2", "cmbFillStyles", "cmbLineStyles"})
        EXPECT_EQ(Shown(name), "[various]") << name;
    Click("chkLocked");
    Click("cmdApply");
    for (const char* column : {"FillForeColor", "FillBackColor", "FillStyle", "OutlineStyle"})
        EXPECT_TRUE(host.LayerColumn(1, column).IsNull()) << column;
    EXPECT_EQ(Stored(1, "LineThickness"), -3);
}

TEST_F(LineAndFillEditorTest, ACustomWidthIsAskedThroughTheHostAndStored)
{
    host.Shell().OnShowModal
        = [](QWidget* form) { QTest::keyClicks(form->findChild<QWidget*>("bedThickness"), "2.5"); };
    Open();
    ClickLayer("Roads");
    Choose("cmbLineStyles", 10);
    EXPECT_EQ(Shown("cmbLineStyles"), "2 mm");
    EXPECT_TRUE(IsUnderlined("lblLineStyles"));
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "LineThickness"), 2);
}

} // namespace Orvane::Testing
