// SPDX-License-Identifier: MIT
// Finding layers by keys, in the whole dialog.
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QStackedWidget>
#include <QtTest>

namespace Orvane::Testing {

namespace {

class Finding : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        StoreViewState("0:0:LAYERS:EXPANDED");
        Open();
        Form()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Form()));
    }

    QLineEdit& Field() { return Find<QLineEdit>("txtFind2"); }
    QTreeView& Layers() { return Find<QTreeView>("tvLayers2"); }

    QStringList Listed()
    {
        QStringList texts;
        for (int row = 0; row < Layers().model()->rowCount(); ++row)
            texts.append(Layers().model()->index(row, 0).data().toString());
        return texts;
    }

    /// With the text that a window system sends for it.
    void PressFind(QWidget& from)
    {
        QTest::sendKeyEvent(QTest::Click, &from, Qt::Key_F, QString(QChar(u'\x06')), Qt::ControlModifier);
    }
    void Type(const QString& text) { QTest::keyClicks(&Field(), text); }
    void PressInField(Qt::Key key) { QTest::keyClick(&Field(), key); }
    bool CoversSettings()
    {
        return Find<QStackedWidget>("stkSettings").currentWidget() != &Find("scrSettings");
    }
};

TEST_F(Finding, CtrlFGoesToTheFieldFromEveryControl)
{
    ClickLayer("Roads");
    for (const char* name :
         {"tvLayers2", "chkVisible", "cboStyle", "cmbColor0", "cmdEditMinScale", "lblCode", "tsLists"}) {
        Find(name).setFocus();
        PressFind(*Form()->focusWidget());
        EXPECT_EQ(Form()->focusWidget(), &Field()) << name;
    }
    ClickTab(1);
    PressFind(Find("tsLists"));
    EXPECT_EQ(Form()->focusWidget(), &Find("txtFind1"));
    ClickTab(3);
    PressFind(Find("tsLists"));
    EXPECT_NE(Form()->focusWidget(), &Find("txtFind1"));
}

TEST_F(Finding, FiltersTheListAsTheUserTypesAndTellsTheNumber)
{
    auto& count = Find<QLabel>("lblFound2");
    EXPECT_FALSE(count.isVisible());
    Type("r");
    EXPECT_EQ(Listed(), QStringList({"Boundary", "Parcels", "Rivers", "Roads"}));
    Type("o");
    EXPECT_EQ(Listed(), QStringList({"Roads"}));
    EXPECT_EQ(count.text(), "1 of 4");
    EXPECT_TRUE(count.isVisible());
    EXPECT_EQ(Field().accessibleDescription(), "1 of 4");
    Type("x");
    EXPECT_EQ(Listed(), QStringList());
    EXPECT_EQ(count.text(), "0 of 4");
    EXPECT_EQ(Field().accessibleDescription(), "Nothing found.");
}

TEST_F(Finding, InANarrowListTheFieldMakesRoomForTheNumber)
{
    Type("r");
    QCoreApplication::processEvents();
    const auto& count = Find<QLabel>("lblFound2");
    EXPECT_EQ(count.width(), count.sizeHint().width()) << "the field has the rest";
    QWidget* page = Field().parentWidget();
    page->setMinimumWidth(0);
    page->resize(count.sizeHint().width() + Field().minimumSizeHint().width() + 20, page->height());
    page->layout()->activate();
    EXPECT_GE(count.width(), count.sizeHint().width());
    EXPECT_GE(Field().width(), Field().minimumSizeHint().width());
}

TEST_F(Finding, EscapeEmptiesTheFieldThenGoesToTheListAndOnlyThenClosesTheDialog)
{
    Field().setFocus();
    Type("roads");
    PressInField(Qt::Key_Escape);
    EXPECT_EQ(Listed().size(), 4);
    EXPECT_EQ(Form()->focusWidget(), &Field());
    EXPECT_FALSE(Find("lblFound2").isVisible());
    PressInField(Qt::Key_Escape);
    ASSERT_NE(Form(), nullptr);
    EXPECT_EQ(Form()->focusWidget(), &Layers());
    QTest::keyClick(&Layers(), Qt::Key_Escape);
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Finding, DownAndEnterGoToTheFirstNodeFound)
{
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter}) {
        ClickLayer("Boundary");
        Field().setFocus();
        Type("roads");
        PressInField(key);
        EXPECT_EQ(Form()->focusWidget(), &Layers());
        EXPECT_EQ(TextOf("lblCode"), QString::number(Stored(1, "Code")));
        Field().clear();
    }
}

TEST_F(Finding, EnterStaysInTheFieldIfNothingIsFound)
{
    Field().setFocus();
    Type("nothing");
    PressInField(Qt::Key_Return);
    EXPECT_EQ(Form()->focusWidget(), &Field());
    ASSERT_TRUE(Form()->isVisible());
}

TEST_F(Finding, TheSettingsOfALayerThatIsNotFoundAreCoveredUntilItIsFoundAgain)
{
    ClickLayer("Roads");
    EXPECT_FALSE(CoversSettings());
    Type("riv");
    EXPECT_TRUE(CoversSettings());
    PressInField(Qt::Key_Escape);
    EXPECT_FALSE(CoversSettings());
    EXPECT_EQ(TextOf("lblCode"), QString::number(Stored(1, "Code")));
}

TEST_F(Finding, NothingIsAskedWhileTheUserTypesAndTheEditsStayInSight)
{
    ClickLayer("Roads");
    Click("chkVisible");
    MessageBoxRobot nobody{};
    Field().setFocus();
    for (const QString letter : {"w", "i", "n", " ", "y"}) {
        Type(letter);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(Listed(), QStringList({"Roads"}));
    EXPECT_EQ(TextOf("lblFound2"), "0 of 4");
    EXPECT_FALSE(CoversSettings());
    EXPECT_TRUE(CanApply());
    PressInField(Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(Form()->focusWidget(), &Field());
    EXPECT_TRUE(CanApply());
}

TEST_F(Finding, EditsOfALayerThatIsNotFoundAreAskedAboutWhenTheUserGoesToAnother)
{
    ClickLayer("Roads");
    Click("chkVisible");
    const double before = Stored(1, "Visible");
    Field().setFocus();
    Type("riv");
    EXPECT_EQ(Listed(), QStringList({"Rivers", "Roads"}));
    MessageBoxRobot user{BoxKey::Yes};
    PressInField(Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Boxes().size(), 1U);
    EXPECT_NE(Stored(1, "Visible"), before);
    EXPECT_EQ(Listed(), QStringList({"Rivers"}));
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(TextOf("lblCode"), QString::number(Stored(2, "Code")));
}

TEST_F(Finding, EditsOfALayerThatIsNotFoundAreAskedAboutWhenTheTabKeyLeadsToTheList)
{
    ClickLayer("Roads");
    Click("chkVisible");
    const double before = Stored(1, "Visible");
    Field().setFocus();
    Type("riv");
    MessageBoxRobot user{BoxKey::No};
    PressInField(Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Boxes().size(), 1U);
    EXPECT_EQ(Stored(1, "Visible"), before);
    EXPECT_EQ(Listed(), QStringList({"Rivers"}));
    EXPECT_TRUE(CoversSettings());
}

TEST_F(Finding, ALayerWithEditsThatIsNotFoundCanBeClickedAndApplied)
{
    ClickLayer("Roads");
    Click("chkVisible");
    const double before = Stored(1, "Visible");
    Field().setFocus();
    Type("riv");
    MessageBoxRobot nobody{};
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    EXPECT_TRUE(CanApply());
    Click("cmdApply");
    EXPECT_NE(Stored(1, "Visible"), before);
    EXPECT_EQ(Listed(), QStringList({"Rivers", "Roads"}));
    ClickLayer("Rivers");
    QCoreApplication::processEvents();
    EXPECT_EQ(Listed(), QStringList({"Rivers"}));
    EXPECT_FALSE(CoversSettings());
    EXPECT_EQ(TextOf("lblCode"), QString::number(Stored(2, "Code")));
}

TEST_F(Finding, ALayerThatIsNotFoundGoesAfterApplyWhenTheArrowKeysLeaveIt)
{
    ClickLayer("Roads");
    Click("chkVisible");
    Field().setFocus();
    Type("riv");
    Click("cmdApply");
    MessageBoxRobot nobody{};
    Layers().setFocus();
    QTest::keyClick(&Layers(), Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(Listed(), QStringList({"Rivers"}));
    EXPECT_EQ(TextOf("lblCode"), QString::number(Stored(2, "Code")));
}

TEST_F(Finding, AListReadAgainByTheHostIsFilteredAgain)
{
    Type("ro");
    host.AddLayer({.id = 70, .name = "Ropes"});
    EditorForm().Refresh();
    EXPECT_EQ(Listed(), QStringList({"Roads", "Ropes"}));
    EXPECT_EQ(Find<QLabel>("lblFound2").text(), "2 of 5");
}

TEST_F(Finding, ANewLayerIsShownWhateverIsFound)
{
    Type("roads");
    host.AddLayer({.id = 70, .name = "Trees"});
    EditorForm().AddNewLayer(70);
    EXPECT_EQ(Listed(), QStringList({"Roads", "Trees"}));
    EXPECT_FALSE(CoversSettings());
}

TEST_F(Finding, TabLeadsFromTheFieldToItsList)
{
    Field().setFocus();
    PressInField(Qt::Key_Tab);
    EXPECT_EQ(Form()->focusWidget(), &Layers());
}

TEST_F(Finding, MarksWhatWasFoundInTheListedName)
{
    const auto picture = [this] { return Layers().viewport()->grab().toImage(); };
    Type("o");
    const QImage one = picture();
    Type("a");
    ASSERT_EQ(Listed(), QStringList({"Roads"}));
    PressInField(Qt::Key_Backspace);
    PressInField(Qt::Key_Backspace);
    Type("O");
    EXPECT_EQ(picture(), one);
    Field().setText("roads");
    const QImage all = picture();
    Field().setText("ro");
    EXPECT_NE(picture(), all);
}

} // namespace

} // namespace Orvane::Testing
