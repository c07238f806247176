// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QLineEdit>
#include <QtTest>

namespace Orvane {

namespace {

using Testing::EditorFixture;

// The host's names change while the dialog is open.
class ListedNames : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        StoreViewState("9000:7000:LAYERS:EXPANDED");
        Open();
    }

    void Obscure(qint32 layerID, const QString& name)
    {
        host.displayNames[layerID] = name + " (Obscured)";
        EditorForm().RefreshLayerNames({layerID});
    }

    QStringList Listed()
    {
        const QAbstractItemModel* model = Find<QTreeView>("tvLayers2").model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row)
            texts << model->index(row, 0).data().toString();
        return texts;
    }
};

} // namespace

TEST_F(ListedNames, FollowTheHost)
{
    Obscure(2, "Rivers");
    EXPECT_TRUE(Listed().contains("(OBS)Rivers ")) << qPrintable(Listed().join('|'));
    host.displayNames.erase(2);
    EditorForm().RefreshLayerNames({2});
    EXPECT_TRUE(Listed().contains("Rivers"));
}

TEST_F(ListedNames, AreAskedForOnlyWhereTheyAreListed)
{
    NewCalls();
    host.Calls().clear();
    EditorForm().RefreshLayerNames({77, 78});
    EXPECT_TRUE(host.Calls().filter("LayerDisplayName").isEmpty());
}

TEST_F(ListedNames, LeaveEditsAndTheChosenLayerAsTheyAre)
{
    ClickLayer("Roads");
    const qint16 before = CheckState("chkVisible");
    Click("chkVisible");
    ASSERT_TRUE(CanApply());
    Obscure(1, "Roads");
    EXPECT_TRUE(CanApply());
    EXPECT_NE(CheckState("chkVisible"), before);
    Click("cmdApply");
    EXPECT_FALSE(CanApply());
}

TEST_F(ListedNames, LeaveTheNameThatIsBeingTyped)
{
    ClickLayer("Rivers");
    auto& tree = Find<QTreeView>("tvLayers2");
    QTest::keyClick(&tree, Qt::Key_F2);
    auto* editor = tree.findChild<QLineEdit*>("txtNodeName");
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, "Streams");
    Obscure(2, "Rivers");
    EXPECT_EQ(editor->text(), "Streams");
    EXPECT_TRUE(editor->isVisible());
}

TEST_F(ListedNames, RenamingBeginsWithThePlainName)
{
    Obscure(2, "Rivers");
    ClickLayer("(OBS)Rivers ");
    auto& tree = Find<QTreeView>("tvLayers2");
    QTest::keyClick(&tree, Qt::Key_F2);
    auto* editor = tree.findChild<QLineEdit*>("txtNodeName");
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), "Rivers");
}

} // namespace Orvane
