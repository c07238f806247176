// SPDX-License-Identifier: MIT
#include "qgis/session/SampleLayers.h"
#include "qgis/session/SessionWorld.h"
#include "samples/BgrColour.h"

#include <qgsmaplayer.h>
#include <qgssnappingconfig.h>
#include <qgsvectorlayer.h>

#include <array>
#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

bool IsValid(const QgsMapLayer& layer)
{
    return layer.isValid();
}

bool HasVectors(const QgsMapLayer& layer)
{
    return layer.isValid() && qobject_cast<const QgsVectorLayer*>(&layer);
}

void Recolour(SessionWorld& world)
{
    QgsVectorLayer* layer = world.AnyPlainLayer();
    if (!layer)
        return;
    const QColor colour(world.dice.Below(256), world.dice.Below(256), world.dice.Below(256));
    PaintSample(*layer, colour);
    world.PaperOf(*layer).untouched = Paper::UntouchedOf(*layer);
    SessionWorld::Settle();
    world.Adopt(world.IDOf(*layer), Paper::symbolColumns);
    const char* column = layer->geometryType() == QgsWkbTypes::LineGeometry ? "Color" : "FillForeColor";
    const auto shown = quint32(qint64(world.PaperOf(*layer).row.at(column).toDouble()));
    EXPECT_EQ(shown & 0xFFFFFFU, quint32(BgrFromQColor(colour)));
}

void Classify(SessionWorld& world)
{
    QgsVectorLayer* layer = world.AnyPlainLayer();
    if (!layer)
        return;
    ClassifySample(*layer);
    world.PaperOf(*layer).untouched = Paper::UntouchedOf(*layer);
    SessionWorld::Settle();
    world.Adopt(world.IDOf(*layer), Paper::symbolColumns);
}

// QGIS does not save the opacity of a table.
bool HasSavedOpacity(const QgsMapLayer& layer)
{
    return layer.isValid() && layer.isSpatial();
}

// A backdrop that gets another opacity is none any more.
void SetOpacity(SessionWorld& world)
{
    QgsMapLayer* layer = world.AnyLayer(HasSavedOpacity);
    Paper::Layer& onPaper = world.PaperOf(*layer);
    onPaper.opacity = 0.4 + 0.05 * world.dice.Below(12);
    if (onPaper.row.at("OverrideMode") == 1.0)
        onPaper.row["OverrideMode"] = 0.0;
    layer->setOpacity(onPaper.opacity);
}

void Tick(SessionWorld& world)
{
    QgsMapLayer* layer = world.AnyLayer();
    Paper::Row& row = world.PaperOf(*layer).row;
    const bool ticked = world.dice.Chance(50);
    QgsLayerTreeLayer* node = world.NodeOf(world.IDOf(*layer));
    if (node->itemVisibilityChecked() == ticked)
        return;
    node->setItemVisibilityChecked(ticked);
    row["Visible"] = double(ticked);
    if (row.at("OverrideMode") == 2.0)
        row["OverrideMode"] = 0.0;
}

void RenameInQgis(SessionWorld& world)
{
    QgsMapLayer* layer = world.AnyLayer(IsValid);
    const QString name = world.NewName();
    layer->setName(name);
    world.PaperOf(*layer).row["Name"] = name;
}

void SetReadOnly(SessionWorld& world)
{
    auto* layer = qobject_cast<QgsVectorLayer*>(world.AnyLayer(HasVectors));
    const bool locked = world.dice.Chance(50);
    if (layer->setReadOnly(locked))
        world.PaperOf(*layer).row["locked"] = double(layer->readOnly());
}

void SetIdentifiable(SessionWorld& world)
{
    QgsMapLayer* layer = world.AnyLayer(HasVectors);
    const bool identifiable = !layer->flags().testFlag(QgsMapLayer::Identifiable);
    QgsMapLayer::LayerFlags flags = layer->flags();
    layer->setFlags(flags.setFlag(QgsMapLayer::Identifiable, identifiable));
    Paper::Row& row = world.PaperOf(*layer).row;
    row["Hitable"] = row["Enquirable"] = double(identifiable);
}

void SetScales(SessionWorld& world)
{
    QgsMapLayer* layer = world.AnyLayer(IsValid);
    if (!world.PaperOf(*layer).row.at("MinVisScale").isValid())
        return;
    const int scale = 1000 * (1 + world.dice.Below(9));
    layer->setMaximumScale(scale);
    layer->setMinimumScale(10 * scale);
    layer->setScaleBasedVisibility(true);
    layer->triggerRepaint();
    Paper::Row& row = world.PaperOf(*layer).row;
    row["MinVisScale"] = double(scale);
    row["MaxVisScale"] = double(10 * scale);
}

void Edit(SessionWorld& world)
{
    auto* layer = qobject_cast<QgsVectorLayer*>(world.AnyLayer(HasVectors));
    if (layer->isEditable())
        EXPECT_TRUE(layer->commitChanges());
    else
        layer->startEditing();
    EXPECT_EQ(layer->readOnly(), world.PaperOf(*layer).row.at("locked") == 1.0);
}

void Filter(SessionWorld& world)
{
    QgsVectorLayer* layer = world.AnyPlainLayer();
    if (!layer || layer->isEditable())
        return;
    layer->setSubsetString(QStringLiteral("people > %1").arg(world.dice.Below(100)));
    world.PaperOf(*layer).untouched = Paper::UntouchedOf(*layer);
}

void LoadStyle(SessionWorld& world)
{
    QgsVectorLayer* from = world.AnyPlainLayer();
    QgsVectorLayer* to = world.AnyPlainLayer();
    if (!from || from == to || from->geometryType() != to->geometryType() || to->isEditable())
        return;
    bool ok = false;
    const QString file = world.folder.filePath("style.qml");
    from->saveNamedStyle(file, ok);
    ASSERT_TRUE(ok);
    to->loadNamedStyle(file, ok);
    ASSERT_TRUE(ok);
    Paper::Layer& onPaper = world.PaperOf(*to);
    onPaper.untouched = Paper::UntouchedOf(*to);
    SessionWorld::Settle();
    world.Adopt(world.IDOf(*to), Paper::columns); // scales and opacity are a part of the style
    onPaper.opacity = to->opacity() / (onPaper.row.at("OverrideMode") == 1.0 ? 0.35 : 1);
    const QVariant& expected = world.PaperOf(*from).row.at("FillForeColor");
    EXPECT_EQ(onPaper.row.at("FillForeColor"), expected);
}

void SetSnapping(SessionWorld& world)
{
    QgsSnappingConfig config = world.project.snappingConfig();
    const bool all = world.dice.Chance(50);
    config.setMode(all ? QgsSnappingConfig::AllLayers : QgsSnappingConfig::ActiveLayer);
    config.setEnabled(true);
    world.project.setSnappingConfig(config);
    for (auto& [id, layer] : world.paper) {
        if (layer.row.at("SnapRequired").isValid())
            layer.row["SnapRequired"] = double(all);
    }
}

} // namespace

std::vector<Deed> StyleDeeds()
{
    return {
        {"recolour in QGIS", 6, Recolour},
        {"classify in QGIS", 1, Classify},
        {"set the opacity in QGIS", 4, SetOpacity},
        {"tick in QGIS", 4, Tick},
        {"rename in QGIS", 2, RenameInQgis},
        {"protect in QGIS", 2, SetReadOnly},
        {"make identifiable in QGIS", 2, SetIdentifiable},
        {"set scales in QGIS", 2, SetScales},
        {"edit in QGIS", 2, Edit},
        {"filter in QGIS", 1, Filter},
        {"load a style in QGIS", 3, LoadStyle},
        {"set the snapping in QGIS", 1, SetSnapping}};
}

} // namespace Orvane::Testing
