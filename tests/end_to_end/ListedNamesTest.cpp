// SPDX-License-Identifier: MIT
#include "hostkit/common/SettingsStore.h"
#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/MessageBoxRobot.h"
#include "support/ShownEditor.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// A map of two squares beside its layer control, which lists them.
class ListedNamesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.Path(""));
        SettingsStore().Write("DrawStyleEditor::Main", "9000:7000:LAYERS:EXPANDED");
        {
            const auto document = MapDocument::Create(m_folder.Path("map.orvane"));
            document->SetSystem("EPSG:4326");
            for (const char* name : {"fields", "woods"}) {
                NewLayer layer;
                layer.name = layer.ogrLayer = name;
                layer.path = m_folder.WriteSquare(name + QString(".geojson"));
                document->AddLayer(layer);
            }
            document->Database().Execute("UPDATE Layers SET MaxVisScale = 1000 WHERE Name = 'fields'");
        }
        m_window.resize(500, 400);
        m_window.show();
        m_window.OpenMap(m_folder.Path("map.orvane"));
        m_window.ShowLayerControl();
    }

    void TearDown() override { m_window.close(); }

    QWidget* Form() const
    {
        if (QWidget* form = ShownEditor())
            return form;
        throw std::runtime_error("no layer control");
    }

    QTreeView& Tree() const { return *Form()->findChild<QTreeView*>("tvLayers2"); }

    bool Lists(const QString& text) const
    {
        const QAbstractItemModel* model = Tree().model();
        return !model->match(model->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly).isEmpty();
    }

    void ZoomTo(double unitsPerPixel)
    {
        MapCanvas& canvas = m_window.Canvas();
        canvas.SetView(MapView({5, 5}, unitsPerPixel, canvas.size()));
    }

    DataFolder m_folder;
    MainWindow m_window;
};

} // namespace

TEST_F(ListedNamesTest, FollowTheScaleOfTheMap)
{
    EXPECT_TRUE(Lists("(OBS)fields ")) << "obscured at the scale of the whole map";
    EXPECT_TRUE(Lists("woods"));
    ZoomTo(1e-6);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Lists("fields"); }));
    ZoomTo(0.1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Lists("(OBS)fields "); }));
}

TEST_F(ListedNamesTest, FollowTheScaleWhileEditsWait)
{
    const QAbstractItemModel* model = Tree().model();
    const QModelIndex woods = model->match(model->index(0, 0), Qt::DisplayRole, "woods")[0];
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, Tree().visualRect(woods).center());
    auto* box = Form()->findChild<QWidget*>("chkVisible")->findChild<QCheckBox*>();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    ASSERT_TRUE(Form()->findChild<QPushButton*>("cmdApply")->isEnabled());
    ZoomTo(1e-6);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Lists("fields"); }));
    EXPECT_TRUE(Form()->findChild<QPushButton*>("cmdApply")->isEnabled());
    QTest::mouseClick(Form()->findChild<QPushButton*>("cmdApply"), Qt::LeftButton);
    const auto row
        = m_window.Document().Database().OpenRecordset("SELECT Visible FROM Layers WHERE Name = 'woods'");
    EXPECT_EQ(ToInt32(row->Field("Visible")), 0);
}

TEST_F(ListedNamesTest, ASourceThatGoesSuppressesItsLayerUntilItIsBack)
{
    ASSERT_TRUE(QFile::rename(m_folder.Path("woods.geojson"), m_folder.Path("away.geojson")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Lists("(SUP)woods "); }));
    ASSERT_TRUE(QFile::rename(m_folder.Path("away.geojson"), m_folder.Path("woods.geojson")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Lists("woods"); }));
    EXPECT_TRUE(m_window.Canvas().Layers()[1].features);
}

TEST_F(ListedNamesTest, ASourceThatIsMissingFromTheStartIsListedAsSuppressed)
{
    ASSERT_TRUE(QFile::remove(m_folder.Path("woods.geojson")));
    MessageBoxRobot user{BoxKey::Enter};
    m_window.OpenMap(m_folder.Path("map.orvane"));
    EXPECT_TRUE(user.Only().text.contains("woods.geojson"));
    m_window.ShowLayerControl();
    EXPECT_TRUE(Lists("(SUP)woods "));
}

} // namespace Orvane
