// SPDX-License-Identifier: MIT
#include "qgis/project/SignalBatch.h"

#include "qgis/project/ProjectFixture.h"

#include <QSignalSpy>
#include <qgslayertreemodel.h>
#include <qgslayertreemodellegendnode.h>

namespace Orvane::Testing {

namespace {

class SignalBatchTest : public ProjectFixture
{
protected:
    static std::unique_ptr<QgsFeatureRenderer> Filled(const char* colour)
    {
        auto* symbol = QgsFillSymbol::createSimple({{"color", colour}});
        return std::make_unique<QgsSingleSymbolRenderer>(symbol);
    }
};

TEST_F(SignalBatchTest, ANewRendererIsToldOnceAtTheEnd)
{
    QgsVectorLayer* layer = AddLayer("A");
    QSignalSpy renderer(layer, &QgsMapLayer::rendererChanged);
    QSignalSpy style(layer, &QgsMapLayer::styleChanged);
    QSignalSpy repaint(layer, &QgsMapLayer::repaintRequested);
    project.setDirty(false);
    {
        SignalBatch batch(project, nullptr);
        batch.SetRenderer(*layer, Filled("#ff0000"));
        batch.SetRenderer(*layer, Filled("#00ff00"));
        EXPECT_EQ(style.count() + repaint.count(), 0);
    }
    EXPECT_EQ(renderer.count(), 0);
    EXPECT_EQ(style.count(), 1);
    EXPECT_EQ(repaint.count(), 1);
    EXPECT_TRUE(project.isDirty());
    EXPECT_EQ(FillOf(*layer), QColor("#00ff00"));
}

TEST_F(SignalBatchTest, ThePanelShowsTheNewSymbol)
{
    QgsVectorLayer* layer = AddLayer("A");
    QgsLayerTreeModel panel(project.layerTreeRoot());
    QgsLayerTreeLayer* node = project.layerTreeRoot()->findLayer(layer);
    SignalBatch batch(project, &panel);
    batch.SetRenderer(*layer, Filled("#00ff00"));
    batch.Finish();
    const auto entries = panel.layerLegendNodes(node);
    ASSERT_EQ(entries.size(), 1);
    const auto* entry = qobject_cast<QgsSymbolLegendNode*>(entries.first());
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->symbol()->color(), QColor("#00ff00"));
}

TEST_F(SignalBatchTest, ALayerThatAListenerRemovesIsLeftOut)
{
    QgsVectorLayer* first = AddLayer("A");
    QgsVectorLayer* second = AddLayer("B");
    QObject::connect(first, &QgsMapLayer::styleChanged, first, [&] { project.removeMapLayer(second); });
    SignalBatch batch(project, nullptr);
    batch.SetRenderer(*first, Filled("#ff0000"));
    batch.SetRenderer(*second, Filled("#ff0000"));
    batch.Finish();
    EXPECT_EQ(project.count(), 1);
}

TEST_F(SignalBatchTest, AnEmptyBatchChangesNothing)
{
    AddLayer("A");
    project.setDirty(false);
    SignalBatch(project, nullptr).Finish();
    EXPECT_FALSE(project.isDirty());
}

} // namespace

} // namespace Orvane::Testing
