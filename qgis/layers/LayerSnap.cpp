// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerSnap.h"

#include <qgsproject.h>
#include <qgssnappingconfig.h>
#include <qgsvectorlayer.h>

namespace Orvane {

namespace {

using Settings = QgsSnappingConfig::IndividualLayerSettings;

bool IsSnapped(const QgsSnappingConfig& config, QgsVectorLayer* layer)
{
    if (config.mode() == QgsSnappingConfig::AdvancedConfiguration)
        return config.individualLayerSettings(layer).enabled();
    return config.enabled() && config.mode() == QgsSnappingConfig::AllLayers;
}

Settings SettingsOf(const QgsSnappingConfig& config, QgsVectorLayer* layer)
{
    const Settings settings = config.individualLayerSettings(layer);
    return settings.valid() ? settings
                            : Settings(false, config.typeFlag(), config.tolerance(), config.units());
}

void SetSnapped(QgsSnappingConfig& config, QgsVectorLayer* layer, bool snapped)
{
    Settings settings = SettingsOf(config, layer);
    settings.setEnabled(snapped);
    config.setIndividualLayerSettings(layer, settings);
}

// Layers keep doing what they did.
void MakeAdvanced(QgsSnappingConfig& config, const QgsProject& project)
{
    if (config.mode() == QgsSnappingConfig::AdvancedConfiguration)
        return;
    const QgsSnappingConfig before = config;
    config.setMode(QgsSnappingConfig::AdvancedConfiguration);
    for (QgsVectorLayer* layer : project.layers<QgsVectorLayer*>())
        SetSnapped(config, layer, IsSnapped(before, layer));
}

} // namespace

Value ReadSnap(const QgsMapLayer& layer, const QgsProject& project)
{
    auto* vectors = qobject_cast<QgsVectorLayer*>(const_cast<QgsMapLayer*>(&layer)); // QGIS's key
    return vectors && vectors->isValid() && vectors->isSpatial()
        ? Value(IsSnapped(project.snappingConfig(), vectors))
        : Value::Null();
}

void WriteSnap(QgsProject& project, const QHash<QgsMapLayer*, bool>& layers)
{
    const QgsSnappingConfig before = project.snappingConfig();
    QgsSnappingConfig config = before;
    for (auto entry = layers.begin(); entry != layers.end(); ++entry) {
        auto* layer = qobject_cast<QgsVectorLayer*>(entry.key());
        if (!layer || IsSnapped(before, layer) == entry.value())
            continue;
        MakeAdvanced(config, project);
        SetSnapped(config, layer, entry.value());
        if (entry.value())
            config.setEnabled(true);
    }
    if (config != before)
        project.setSnappingConfig(config);
}

} // namespace Orvane
