// SPDX-License-Identifier: MIT
// Samples of line and fill in the lists of the whole dialog.
#include "component/dialog/EditorFixture.h"

#include <QtTest>

namespace Orvane::Testing {

namespace {

class Samples : public EditorFixture
{
protected:
    void OpenWith(const QString& viewState)
    {
        AddTown();
        StoreViewState(viewState);
        Open();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(Form()));
        Settle();
    }

    /// Until the rows are painted, their samples read and painted.
    void Settle()
    {
        for (int round = 0; round < 4; ++round) {
            Find<QTreeView>("tvLayers2").viewport()->repaint();
            QCoreApplication::processEvents();
        }
    }

    int RowsRead() { return int(host.Log().CallsTo("OpenRecordset").filter("AND LayerID = ").size()); }
};

} // namespace

TEST_F(Samples, AreShownAgainAsTheDialogWasLeft)
{
    OpenWith("9000:7000:LAYERS:EXPANDED:LINE AND FILL");
    EXPECT_EQ(RowsRead(), 4);
    Close();
    EXPECT_TRUE(StoredViewState().endsWith(":LAYERS:EXPANDED:LINE AND FILL"))
        << qPrintable(StoredViewState());
}

TEST_F(Samples, AreNotReadWithoutThatWord)
{
    OpenWith("9000:7000:LAYERS:EXPANDED");
    EXPECT_EQ(RowsRead(), 0);
    Close();
    EXPECT_TRUE(StoredViewState().endsWith(":LAYERS:EXPANDED")) << qPrintable(StoredViewState());
}

TEST_F(Samples, AreReadAgainAfterApplyAndAfterARefreshAndNotAfterAClick)
{
    OpenWith("9000:7000:LAYERS:EXPANDED:LINE AND FILL");
    host.ClearLog();
    ClickLayer("Roads");
    Settle();
    EXPECT_EQ(RowsRead(), 0);
    Click("chkLocked");
    Click("cmdApply");
    Settle();
    EXPECT_EQ(RowsRead(), 4);
    host.ClearLog();
    EditorForm().Refresh();
    Settle();
    EXPECT_EQ(RowsRead(), 4);
}

TEST_F(Samples, TheHostIsNotCalledForThemAfterTheDialogHasClosed)
{
    OpenWith("9000:7000:LAYERS:EXPANDED:LINE AND FILL");
    EditorForm().Refresh();
    Find<QTreeView>("tvLayers2").viewport()->repaint();
    Close();
    host.ClearLog();
    QCoreApplication::processEvents();
    EXPECT_TRUE(host.Log().Trace().isEmpty()) << qPrintable(host.Log().Trace().join('\n'));
}

} // namespace Orvane::Testing
