// SPDX-License-Identifier: MIT
// The form within a widget of the host: keys, size and place.
#include "component/dialog/DockedFixture.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QAction>
#include <QCheckBox>
#include <QTreeView>

namespace Orvane::Testing {

namespace {

/// The same dock, in an active window.
class Embedded : public Docked
{
protected:
    void OpenActive()
    {
        Open();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void GiveWidth(int width)
    {
        QCoreApplication::sendPostedEvents();
        window.resizeDocks({dock}, {width}, Qt::Horizontal);
        QCoreApplication::processEvents();
    }
    void MakeDockNarrow() { GiveWidth(1); }
    void MakeDockWide() { GiveWidth(750); }

    QRect Place(const char* name) { return {Find(name).mapTo(Form(), QPoint()), Find(name).size()}; }
    bool IsBelow() { return Place("picLayerStyle").top() > Place("picLists").bottom(); }
    bool IsBeside() { return Place("picLayerStyle").left() > Place("picLists").right(); }
};

TEST_F(Embedded, EscapeDropsEditsAndLeavesTheDockOpen)
{
    OpenWithEdits();
    Key(Qt::Key_Escape);
    ASSERT_NE(Form(), nullptr);
    EXPECT_FALSE(CanApply());
    Key(Qt::Key_Escape);
    ASSERT_NE(Form(), nullptr);
    EXPECT_TRUE(Form()->isVisible());
}

TEST_F(Embedded, ItsMnemonicsNeedTheFocus)
{
    OpenActive();
    ClickLayer("Roads");
    const auto* box = Find("chkVisible").findChild<QCheckBox*>();
    window.centralWidget()->setFocus();
    QTest::keyClick(window.centralWidget(), Qt::Key_V, Qt::AltModifier);
    EXPECT_FALSE(box->isDown());
    Find("tvLayers2").setFocus();
    QTest::keyClick(&Find("tvLayers2"), Qt::Key_V, Qt::AltModifier);
    EXPECT_TRUE(box->isDown()) << "for a moment, as if it were clicked";
    EXPECT_TRUE(QTest::qWaitFor([&] { return CanApply(); }));
    EditorForm().UnloadWithoutApply();
}

TEST_F(Embedded, TheHostsShortcutsWorkWhereTheFormHasTheSame)
{
    OpenActive();
    QAction view(QString("View"));
    view.setShortcut(QKeySequence(QStringLiteral("Alt+V")));
    window.addAction(&view);
    int triggered = 0;
    QObject::connect(&view, &QAction::triggered, [&] { ++triggered; });
    window.centralWidget()->setFocus();
    QTest::keyClick(window.centralWidget(), Qt::Key_V, Qt::AltModifier);
    EXPECT_EQ(triggered, 1);
}

TEST_F(Embedded, TheKeysOfItsListsAreNotTakenByTheHostsShortcuts)
{
    OpenActive();
    QAction whole(QString("Whole Map"));
    whole.setShortcut(QKeySequence(Qt::Key_Home));
    window.addAction(&whole);
    int triggered = 0;
    QObject::connect(&whole, &QAction::triggered, [&] { ++triggered; });
    ClickLayer("Roads");
    auto& list = static_cast<QTreeView&>(Find("tvLayers2"));
    ASSERT_GT(list.currentIndex().row(), 0);
    QTest::keyClick(&list, Qt::Key_Home);
    EXPECT_EQ(list.currentIndex().row(), 0);
    EXPECT_EQ(triggered, 0);
    window.setCentralWidget(new QWidget);
    window.centralWidget()->setFocusPolicy(Qt::StrongFocus);
    window.centralWidget()->setFocus();
    QTest::keyClick(window.centralWidget(), Qt::Key_Home);
    EXPECT_EQ(triggered, 1) << "outside of the form it is the host's";
}

TEST_F(Embedded, TheTabKeyLeadsOutOfTheForm)
{
    OpenActive();
    ClickLayer("Roads");
    Find("tsLists").setFocus();
    constexpr int most = 99;
    for (int press = 0; press < most && !window.centralWidget()->hasFocus(); ++press)
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(window.centralWidget()->hasFocus());
    QTest::keyClick(window.centralWidget(), Qt::Key_Tab);
    EXPECT_TRUE(dock->isAncestorOf(window.focusWidget())) << "and into it again";
}

TEST_F(Embedded, ItKeepsTheSizeOfItsWindowForTheNextOne)
{
    StoreViewState("9000:7000:LAYERS:EXPANDED");
    Open();
    window.resize(1100, 900);
    Close();
    EXPECT_EQ(StoredViewState(), "9000:7000:LAYERS:EXPANDED");
}

TEST_F(Embedded, AWindowThatIsDockedKeepsItsSizeAndItsEdits)
{
    StoreViewState("9000:7000:LAYERS:EXPANDED");
    host.OnShowEditor = [](QWidget* form) {
        form->winId(); // a native window
        form->show();
    };
    OpenWithEdits();
    Form()->resize(640, 480);
    Put(*dock, Form());
    EXPECT_TRUE(Form()->isVisible());
    EXPECT_TRUE(CanApply());
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Visible"), 0);
    Close();
    EXPECT_EQ(StoredViewState(), "9600:7200:LAYERS:EXPANDED");
}

TEST_F(Embedded, WhenItIsAWindowAgainItHasTheSizeOfThatWindow)
{
    StoreViewState("9000:7000:LAYERS:EXPANDED");
    Open();
    MakeDockNarrow();
    QWidget* form = Form();
    dock->setWidget(nullptr);
    form->setParent(nullptr, Qt::Dialog);
    form->show();
    EXPECT_EQ(form->size(), QSize(600, 467));
    EXPECT_TRUE(IsBeside());
    Close();
    EXPECT_EQ(StoredViewState(), "9000:7000:LAYERS:EXPANDED");
}

TEST_F(Embedded, InANarrowDockTheSettingsAreBelowTheList)
{
    Open();
    ClickLayer("Roads");
    MakeDockWide();
    ASSERT_TRUE(IsBeside());
    MakeDockNarrow();
    EXPECT_TRUE(IsBelow());
    EXPECT_LE(Form()->width(), Find("picLayerStyle").minimumWidth() + 40);
    for (const char* name : {"tsLists", "tvLayers2", "cmdDeleteLayer", "Hidden", "cmbColor0", "cmdApply"}) {
        EXPECT_TRUE(Form()->rect().contains(Place(name))) << name;
        EXPECT_GE(Find(name).width(), Find(name).minimumSizeHint().width()) << name;
    }
    MakeDockWide();
    EXPECT_TRUE(IsBeside());
}

TEST_F(Embedded, ANarrowDockKeepsItsWidthOnEveryTab)
{
    Open();
    MakeDockNarrow();
    const int width = Form()->width();
    for (const int tab : {1, 2, 3, 2, 1}) {
        ClickTab(tab);
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(Form()->width(), width) << tab;
        EXPECT_TRUE(IsBelow()) << tab;
    }
}

TEST_F(Embedded, WithoutItsSettingsANarrowDockShowsTheListAlone)
{
    Open();
    MakeDockNarrow();
    const int height = Find("tvLayers2").height();
    Click("cmdResize");
    QCoreApplication::sendPostedEvents();
    EXPECT_FALSE(Find("picLayerStyle").isVisible());
    EXPECT_GT(Find("tvLayers2").height(), height);
    Click("cmdResize");
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(IsBelow());
}

TEST_F(Embedded, HidingTheSettingsLeavesTheSizeToTheDock)
{
    Open();
    QCoreApplication::sendPostedEvents();
    window.resizeDocks({dock}, {700}, Qt::Horizontal);
    QCoreApplication::processEvents();
    const int width = Form()->width();
    Click("cmdResize");
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(Form()->width(), width);
    EXPECT_FALSE(Find("picLayerStyle").isVisible());
    EXPECT_EQ(
        Form()->geometry().topLeft(), Form()->parentWidget()->layout()->itemAt(0)->geometry().topLeft());
}

TEST_F(Embedded, ALowDockShowsListAndButtons)
{
    Open();
    ClickLayer("Roads");
    window.resize(900, 300);
    QCoreApplication::sendPostedEvents();
    EXPECT_LE(window.height(), 300);
    for (const char* name : {"tvLayers2", "scrSettings", "cmdApply", "cmdCancel", "cmdResize"}) {
        const QWidget& control = Find(name);
        const QRect place(control.mapTo(&window, QPoint()), control.size());
        EXPECT_TRUE(window.rect().contains(place)) << name;
        EXPECT_GE(place.height(), control.minimumSizeHint().height()) << name;
    }
}

TEST_F(Embedded, FloatingAndDockingAgainKeepsEditsAndShortcuts)
{
    OpenWithEdits();
    dock->setFloating(true);
    EXPECT_TRUE(Form()->isVisible());
    EXPECT_TRUE(CanApply());
    dock->setFloating(false);
    EXPECT_TRUE(Form()->isVisible());
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(Form()->windowType(), Qt::SubWindow) << "its shortcuts need the focus";
    EditorForm().UnloadWithoutApply();
}

} // namespace

} // namespace Orvane::Testing
