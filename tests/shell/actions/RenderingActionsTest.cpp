// SPDX-License-Identifier: MIT
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/looks/RendererStyles.h"
#include "shell/MainWindowTest.h"

#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QTimer>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto Places = R"({"type":"FeatureCollection","features":[
{"type":"Feature","properties":{"kind":"town","name":"Oslo"},
 "geometry":{"type":"Point","coordinates":[10,59]}}]})";

class RenderingActionsTest : public MainWindowTest
{
protected:
    void SetUp() override
    {
        const QString path = m_folder.Path("map.orvane");
        MakeTown(path);
        m_window->OpenMap(path);
    }

    void MakeTown(const QString& path) const
    {
        const auto document = MapDocument::Create(path);
        NewLayer layer;
        layer.name = "Towns";
        layer.path = m_folder.Write("places.geojson", Places);
        layer.ogrLayer = "places";
        document->AddLayer(layer);
        document->Database().Execute("UPDATE Layers SET Style = ?1", {RendererStyles::Labelled});
    }

    QString LabelOnMap() const
    {
        const std::vector<MapLayer>& layers = m_window->Canvas().Layers();
        return layers.empty() || !layers.front().labels ? QString() : layers.front().labels->texts.front();
    }

    bool WaitForLabel(const QString& text)
    {
        return QTest::qWaitFor([&] { return LabelOnMap() == text; });
    }
};

} // namespace

TEST_F(RenderingActionsTest, WhatLabelsALayerIsChosenUndoneAndRedone)
{
    ASSERT_TRUE(WaitForLabel("Oslo"));
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        auto* attribute = dialog->findChild<QComboBox*>("cmbLabelAttribute");
        QTest::keyClick(attribute, Qt::Key_Down);
        EXPECT_EQ(attribute->currentText(), "kind");
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    Action("actLayerRendering")->trigger();
    EXPECT_TRUE(WaitForLabel("town"));
    Action("actUndo")->trigger();
    EXPECT_TRUE(WaitForLabel("Oslo"));
    Action("actRedo")->trigger();
    EXPECT_TRUE(WaitForLabel("town"));
}

} // namespace Orvane
