// SPDX-License-Identifier: MIT
#include "end_to_end/Town.h"
#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/common/SettingsStore.h"
#include "hostkit/tracing/CallTrace.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "store/ILayerStore.h"
#include "support/MessageBoxRobot.h"
#include "support/ShownEditor.h"

#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QPushButton>
#include <QSettings>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto ViewStateKey = "DrawStyleEditor::Main";
constexpr auto ViewState = "9000:7000:LAYERS:EXPANDED";
constexpr auto FlatList = "SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name";
constexpr auto Layer = "Fields";

// The town in its window, with the actions and observations of the user.
class TypicalSession : public testing::Test
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
        SettingsStore().Write(ViewStateKey, ViewState);
        QSettings().setValue("LayerControl/Docked", false); // the map keeps its size
        const QString map = MakeTown(m_folder, "town.orvane");
        m_traceBuffer.open(QIODevice::WriteOnly);
        m_window = std::make_unique<MainWindow>(&m_trace);
        m_window->resize(600, 400);
        m_window->show();
        m_window->OpenMap(map);
        m_layerID = ToInt32(Row("Name", "'Fields'")->Field("LayerID"));
    }

    std::unique_ptr<IRecordset> Row(const QString& column, const QString& value)
    {
        return m_window->Document().Database().OpenRecordset(
            "SELECT * FROM Layers WHERE " + column + " = " + value);
    }

    Value Stored(const char* column) { return Row("LayerID", QString::number(m_layerID))->Field(column); }

    void OpenLayerControl()
    {
        m_window->findChild<QAction*>("actLayerControl")->trigger();
        ASSERT_NE(Form(), nullptr);
    }

    static QWidget* Form() { return ShownEditor(); }

    template <typename Widget> static Widget& Find(const char* name)
    {
        auto* found = Form() ? Form()->findChild<Widget*>(QLatin1String(name)) : nullptr;
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }

    static void ClickLayer(const QString& name)
    {
        auto& tree = Find<QTreeView>("tvLayers2");
        const QModelIndexList found = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, name);
        ASSERT_EQ(found.size(), 1);
        tree.scrollTo(found[0]);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(found[0]).center());
    }

    static QCheckBox& VisibleBox() { return *Find<QWidget>("chkVisible").findChild<QCheckBox*>(); }

    static void ClickVisible()
    {
        QCheckBox& box = VisibleBox();
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    }

    static void Apply() { QTest::mouseClick(&Find<QPushButton>("cmdApply"), Qt::LeftButton); }

    QImage Map()
    {
        MapCanvas& canvas = m_window->Canvas();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return !canvas.Picture().IsBusy() && canvas.Picture().ImageView() == canvas.View(); }));
        return canvas.grab().toImage();
    }

    // The lines since the last call.
    QStringList NewTrace()
    {
        const QStringList lines = QString::fromUtf8(m_traceBuffer.buffer()).split('\n', Qt::SkipEmptyParts);
        const QStringList fresh = lines.mid(m_seenLines);
        m_seenLines = lines.size();
        return fresh;
    }

    // Each beginning of a line is found after the previous one.
    static void ExpectInOrder(const QStringList& lines, const QStringList& beginnings)
    {
        qsizetype from = 0;
        for (const QString& beginning : beginnings) {
            const auto found = std::find_if(lines.begin() + from, lines.end(), [&](const QString& line) {
                return line.startsWith(beginning);
            });
            if (found == lines.end()) {
                ADD_FAILURE() << "not in its place: " << qPrintable(beginning) << "\nin:\n"
                              << qPrintable(lines.join('\n'));
                return;
            }
            from = found - lines.begin() + 1;
        }
    }

    QTemporaryDir m_folder;
    QBuffer m_traceBuffer;
    CallTrace m_trace{m_traceBuffer};
    qsizetype m_seenLines = 0;
    std::unique_ptr<MainWindow> m_window;
    qint32 m_layerID = 0;
};

} // namespace

TEST_F(TypicalSession, RunsFromTheFirstCallToTheLast)
{
    const QString id = QString::number(m_layerID);

    OpenLayerControl();
    ExpectInOrder(
        NewTrace(),
        {"library.Initialise", "client.GetShellServices", "library.NewStyleEditor(\"Main\")",
         "editor.Visible(true)",
         QStringLiteral("client.ReadSetting(\"%1\") -> \"%2\"").arg(ViewStateKey, ViewState),
         QStringLiteral("database.OpenRecordset(\"%1\")").arg(FlatList), "filter.IsLayerShown(",
         "client.ShowEditor("});
    EXPECT_EQ(Find<QTabBar>("tsLists").currentIndex(), 1);

    ClickLayer(Layer);
    ExpectInOrder(
        NewTrace(),
        {"client.LayersTable()", "recordset.Index(\"LayerIDIDX\")",
         QStringLiteral("recordset.Seek(\"=\", %1) -> found").arg(id)});
    EXPECT_TRUE(VisibleBox().isChecked());

    const QImage before = Map();
    ClickVisible();
    // Pickers paint with the host's colours, names follow the scale of the map, and the choice is told later.
    for (const QString& line : NewTrace()) {
        const bool isLate
            = line.startsWith("client.LayerDisplayName(") || line.startsWith("client.LayersChosen(");
        EXPECT_TRUE(line.startsWith("shell.") || isLate) << qPrintable(line);
    }
    Apply();
    ExpectInOrder(
        NewTrace(),
        {QStringLiteral("recordset.Seek(\"=\", %1) -> found").arg(id), "client.BeginLayerEdit(",
         "recordset.SetField(\"Visible\", False)", "client.LayerChanged(" + id + ")", "recordset.Update()",
         "client.RedrawMap()"});
    EXPECT_FALSE(ToBoolean(Stored("Visible")));
    EXPECT_NE(Map(), before);

    Form()->close();
    ExpectInOrder(
        NewTrace(),
        {"client.EditorClosed(",
         QStringLiteral("client.WriteSetting(\"%1\", \"%2\")").arg(ViewStateKey, ViewState)});
    EXPECT_EQ(SettingsStore().Read(ViewStateKey), ViewState);
    EXPECT_EQ(StyleEditorPlugin().Library().GetStyleEditor("Main"), nullptr);
}

TEST_F(TypicalSession, TickingAgainBringsTheLayerBack)
{
    const QImage before = Map();
    OpenLayerControl();
    ClickLayer(Layer);
    ClickVisible();
    Apply();
    EXPECT_NE(Map(), before);
    ClickVisible();
    Apply();
    EXPECT_TRUE(ToBoolean(Stored("Visible")));
    EXPECT_EQ(Map(), before);
    Form()->close();
}

TEST_F(TypicalSession, OpeningItTwiceShowsOneEditor)
{
    OpenLayerControl();
    QWidget* first = Form();
    NewTrace();
    OpenLayerControl();
    EXPECT_EQ(Form(), first);
    EXPECT_TRUE(NewTrace().filter("NewStyleEditor").isEmpty());
    Form()->close();
}

TEST_F(TypicalSession, AClosedEditorCanBeOpenedAgain)
{
    OpenLayerControl();
    Form()->close();
    OpenLayerControl();
    Form()->close();
}

TEST_F(TypicalSession, ClosingTheWindowClosesTheEditorAndAsksAboutItsEdits)
{
    OpenLayerControl();
    ClickLayer(Layer);
    ClickVisible();
    MessageBoxRobot user{BoxKey::Yes};
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(user.Only().text.contains("apply")) << qPrintable(user.Only().text);
    EXPECT_FALSE(ToBoolean(Stored("Visible")));
    EXPECT_EQ(StyleEditorPlugin().Library().GetStyleEditor("Main"), nullptr);
}

TEST_F(TypicalSession, EndingTheProgramWithAnOpenEditorIsHarmless)
{
    OpenLayerControl();
    ClickLayer(Layer);
    ClickVisible();
    m_window.reset();
    EXPECT_EQ(StyleEditorPlugin().Library().GetStyleEditor("Main"), nullptr);
}

TEST_F(TypicalSession, AnotherMapIsOpenedInTheSameEditorsPlace)
{
    const QString other = MakeTown(m_folder, "other.orvane");
    OpenLayerControl();
    m_window->OpenMap(other);
    ASSERT_TRUE(Form()) << "it opens again by itself";
    ClickLayer(Layer);
    ClickVisible();
    Apply();
    EXPECT_FALSE(ToBoolean(Stored("Visible")));
    EXPECT_EQ(m_window->Document().Path(), other);
    Form()->close();
}

} // namespace Orvane
