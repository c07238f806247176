// SPDX-License-Identifier: MIT
#include "examples/sample_maps/SampleLayers.h"

#include "mapkit/document/MapDocument.h"
#include "samples/BgrColour.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/Transaction.h>

namespace Orvane {

namespace {

NewLayer LayerFor(const SampleLayer& sample, const QString& path)
{
    NewLayer layer;
    layer.name = QString::fromUtf8(sample.name);
    layer.values.color = Bgr(sample.line);
    layer.values.fillForeColor = sample.fill == 0 ? TransparentColour : Bgr(sample.fill);
    layer.values.fillBackColor = TransparentColour;
    layer.values.outlineStyle = sample.outlineStyle;
    layer.values.fillStyle = sample.fill == 0 ? HollowFill : sample.fillStyle;
    layer.values.lineThickness = sample.thickness;
    layer.priority = sample.priority;
    layer.visible = sample.visible;
    layer.maxDenominator = sample.maxDenominator;
    layer.path = path;
    layer.ogrLayer = QString::fromUtf8(sample.ogrLayer);
    layer.filter = QString::fromUtf8(sample.filter);
    return layer;
}

} // namespace

void AddSampleLayers(
    MapDocument& document, std::span<const SampleLayer> layers,
    const std::function<QString(const QString& file)>& pathOf)
{
    Transaction transaction(document.Database());
    QString groupName;
    qint32 groupID = 0;
    for (const SampleLayer& sample : layers) {
        const QString path = pathOf(QString::fromUtf8(sample.file));
        if (path.isEmpty())
            continue;
        if (groupName != QString::fromUtf8(sample.group)) {
            groupName = QString::fromUtf8(sample.group);
            groupID = document.AddGroup(groupName, groupID == 0);
        }
        document.AddMember(groupID, document.AddLayer(LayerFor(sample, path)));
    }
    transaction.Commit();
}

} // namespace Orvane
