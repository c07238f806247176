// SPDX-License-Identifier: MIT
// A name that is being edited when the dialog ends.
#include "component/dialog/EditorFixture.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QCoreApplication>
#include <QLineEdit>
#include <QTreeView>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NameEdit : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        Open();
        ClickLayer("Roads");
    }

    /// Presses F2 and types, and leaves the field open.
    void Type(const char* name)
    {
        QTest::keyClick(&Find("tvLayers2"), Qt::Key_F2);
        auto* field = Find("tvLayers2").findChild<QLineEdit*>("txtNodeName");
        ASSERT_NE(field, nullptr);
        QTest::keyClicks(field, name);
    }

    QStringList Renames()
    {
        QCoreApplication::processEvents();
        return host.Log().CallsTo("RenameLayer");
    }
};

} // namespace

TEST_F(NameEdit, IsDroppedWhenTheHostUnloadsTheDialog)
{
    Type("Streets");
    EditorForm().UnloadWithoutApply();
    EXPECT_THAT(Renames(), IsEmpty());
}

TEST_F(NameEdit, IsDroppedWhenItWasConfirmedInTheSameEvent)
{
    Type("Streets");
    QTest::keyClick(Find("tvLayers2").findChild<QLineEdit*>("txtNodeName"), Qt::Key_Return);
    EditorForm().UnloadWithoutApply();
    EXPECT_THAT(Renames(), IsEmpty());
}

TEST_F(NameEdit, NeverReachesAnotherMap)
{
    MemoryHost other;
    other.AddLayer({.id = 1, .name = QString("Rivers")});
    Type("Streets");
    EditorForm().UnloadWithoutApply();
    Library().Initialise(&other);
    EXPECT_THAT(Renames(), IsEmpty());
    EXPECT_THAT(other.Log().CallsTo("RenameLayer"), IsEmpty());
    Library().Initialise(&host);
}

TEST_F(NameEdit, IsStoredBeforeTheHostHidesTheDialog)
{
    MemoryHost other;
    Type("Streets");
    Editor().Visible(false);
    EXPECT_THAT(host.Log().CallsTo("RenameLayer"), ElementsAre("RenameLayer(1, Streets)"));
    Library().Initialise(&other);
    QCoreApplication::processEvents();
    EXPECT_THAT(other.Log().CallsTo("RenameLayer"), IsEmpty());
    Library().Initialise(&host);
}

TEST_F(NameEdit, IsStoredBeforeTheUserClosesTheDialog)
{
    Type("Streets");
    Form()->close();
    EXPECT_THAT(Renames(), ElementsAre("RenameLayer(1, Streets)"));
}

TEST_F(NameEdit, ThatIsEmptyIsRefusedBeforeTheDialogCloses)
{
    Type("");
    auto* field = Find("tvLayers2").findChild<QLineEdit*>("txtNodeName");
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    MessageBoxRobot user{BoxKey::Enter};
    Form()->close();
    EXPECT_EQ(user.Only().text, "Invalid Name");
    EXPECT_THAT(Renames(), IsEmpty());
}

} // namespace Orvane::Testing
