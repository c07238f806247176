// SPDX-License-Identifier: MIT
#include "examples/vector_host/LinesWindow.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/undo/UndoHistory.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QCheckBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

/// The example with its layer control open, and the actions of a user.
class VectorHost : public testing::Test
{
protected:
    VectorHost()
    {
        StandardClient& client = m_window.Client();
        client.SetSettingsFile(m_folder.filePath(QStringLiteral("settings.ini")));
        IStyleEditorClient& host = client;
        host.WriteSetting(
            nullptr, QStringLiteral("DrawStyleEditor::Main"), QStringLiteral("9000:7000:LAYERS:EXPANDED"));
        QObject::connect(&client.Notifications(), &HostNotifications::EditorShown, [this](QWidget* form) {
            m_form = form;
        });
        m_window.resize(200, 100);
        m_window.ShowLayerControl();
    }

    QTreeView& List() { return *m_form->findChild<QTreeView*>(QStringLiteral("tvLayers2")); }

    QModelIndex Node(const QString& name)
    {
        const QAbstractItemModel& model = *List().model();
        return model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    }

    void ClickLayer(const QString& name)
    {
        ASSERT_TRUE(Node(name).isValid()) << qPrintable(name);
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().visualRect(Node(name)).center());
    }

    void Click(const char* name)
    {
        auto* control = m_form->findChild<QWidget*>(QLatin1String(name));
        ASSERT_TRUE(control) << name;
        auto* box = control->findChild<QCheckBox*>();
        QTest::mouseClick(box ? box : control, Qt::LeftButton);
    }

    bool HasEdits() { return dynamic_cast<IStyleEditorForm&>(*m_form).HasPendingEdits(); }

    QColor Painted(int line) { return m_window.grab().toImage().pixelColor(100, 22 + 20 * line); }

    QTemporaryDir m_folder;
    LinesWindow m_window{{{1, "Roads", Qt::red}, {2, "Rivers", Qt::blue}}};
    QWidget* m_form = nullptr;
};

TEST_F(VectorHost, DrawsWhatTheUserAppliesAndTakesBack)
{
    EXPECT_EQ(Painted(1), QColor(Qt::blue));
    ClickLayer("Rivers");
    Click("chkVisible");
    EXPECT_EQ(Painted(1), QColor(Qt::blue));
    Click("cmdApply");
    EXPECT_FALSE(m_window.Lines()[1].shown);
    EXPECT_NE(Painted(1), QColor(Qt::blue));
    EXPECT_EQ(Painted(0), QColor(Qt::red));
    m_window.Client().History().Undo();
    EXPECT_EQ(Painted(1), QColor(Qt::blue));
}

TEST_F(VectorHost, ItsOwnChangesReachTheOpenControlAndKeepEditsThatAreNotApplied)
{
    ClickLayer("Rivers");
    Click("chkVisible");
    ASSERT_TRUE(HasEdits());
    m_window.SetLines({{2, "Rivers", Qt::cyan}, {3, "Paths", Qt::green}});
    EXPECT_TRUE(Node("Paths").isValid());
    EXPECT_FALSE(Node("Roads").isValid());
    EXPECT_TRUE(HasEdits());
    Click("cmdApply");
    ASSERT_EQ(m_window.Lines().size(), 2U);
    EXPECT_FALSE(m_window.Lines()[0].shown);
    EXPECT_EQ(m_window.Lines()[0].colour, QColor(Qt::cyan));
}

TEST_F(VectorHost, ItsOwnChangesKeepWhatItsLinesDoNotHave)
{
    ClickLayer("Rivers");
    Click("chkLocked");
    Click("cmdApply");
    std::vector<Line> lines = m_window.Lines();
    lines[1].name = "Canals";
    m_window.SetLines(lines);
    ClickLayer("Canals");
    EXPECT_TRUE(m_form->findChild<QWidget*>("chkLocked")->findChild<QCheckBox*>()->isChecked());
}

TEST_F(VectorHost, ASchemeBringsTheLinesBack)
{
    IStyleEditorClient& host = m_window.Client();
    host.CreateScheme(QStringLiteral("Night"));
    std::vector<Line> lines = m_window.Lines();
    lines[0].colour = Qt::yellow;
    m_window.SetLines(lines);
    EXPECT_EQ(m_window.Client().UnsavedSchemeChanges(), 1);
    host.LoadScheme(QStringLiteral("Night"));
    EXPECT_EQ(m_window.Lines()[0].colour, QColor(Qt::red));
}

} // namespace
} // namespace Orvane::Testing
