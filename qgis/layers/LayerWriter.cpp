// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerWriter.h"

#include "qgis/layers/KeptValues.h"
#include "qgis/layers/LayerFlags.h"
#include "qgis/layers/LayerScales.h"
#include "qgis/layers/LayerTick.h"
#include "qgis/layers/OverrideMode.h"
#include "qgis/layers/SymbolColumns.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <qgsmaplayer.h>
#include <qgsrenderer.h>

namespace Orvane {

namespace {

// The columns of a layer that were changed.
class Changes
{
public:
    Changes(const LayerValues& before, const LayerValues& after) : m_before(before), m_after(after) { }

    bool Has(std::string_view column) const
    {
        return !ValueOf(m_after, column).IsNull() && Differs(m_before, m_after, column);
    }
    const Value& New(std::string_view column) const { return ValueOf(m_after, column); }

private:
    const LayerValues& m_before;
    const LayerValues& m_after;
};

void WriteKept(QgsMapLayer& layer, const Changes& changes)
{
    if (changes.Has("Code"))
        KeptValues::Keep(layer, "Code", ToInt32(changes.New("Code")));
    if (changes.Has("Selectable"))
        KeptValues::Keep(layer, "Selectable", ToBoolean(changes.New("Selectable")));
}

void WriteFlags(WrittenLayer& written, QgsMapLayer& layer, const Changes& changes)
{
    PointingFlags pointing = ReadPointing(layer);
    if (changes.Has("Hitable"))
        pointing.hitable = ToBoolean(changes.New("Hitable"));
    if (changes.Has("Enquirable"))
        pointing.enquirable = ToBoolean(changes.New("Enquirable"));
    if (changes.Has("Hitable") || changes.Has("Enquirable"))
        WritePointing(layer, pointing);
    if (changes.Has("locked") && !WriteLocked(layer, ToBoolean(changes.New("locked"))))
        written.refused.emplace_back("locked");
}

void WriteScaleColumns(QgsMapLayer& layer, const Changes& changes)
{
    LayerScales scales = ReadScales(layer);
    if (changes.Has("MinVisScale"))
        scales.minimum = ToDouble(changes.New("MinVisScale"));
    if (changes.Has("MaxVisScale"))
        scales.maximum = ToDouble(changes.New("MaxVisScale"));
    if (changes.Has("MinVisScale") || changes.Has("MaxVisScale"))
        WriteScales(layer, scales);
}

void WriteShowing(WrittenLayer& written, QgsMapLayer& layer, const LayerNodes& nodes, const Changes& changes)
{
    ForgetEndedMode(layer, nodes);
    if (changes.Has("OverrideMode") && !WriteOverrideMode(layer, nodes, ToInt32(changes.New("OverrideMode"))))
        written.refused.emplace_back("OverrideMode");
    if (changes.Has("Visible"))
        WriteVisible(layer, nodes, ToBoolean(changes.New("Visible")));
}

// QGIS saves such a layer as it was read.
void WriteLostLayer(
    WrittenLayer& written, QgsMapLayer& layer, const LayerNodes& nodes, const Changes& changes)
{
    for (const LayerColumn& column : LayerColumns) {
        const std::string_view name = column.name;
        if (column.inSchemes == InSchemes::No && name != "Code")
            continue;
        if (name != "Visible" && name != "Priority" && changes.Has(name))
            written.refused.push_back(name);
    }
    if (changes.Has("Visible"))
        WriteVisible(layer, nodes, ToBoolean(changes.New("Visible")));
}

} // namespace

WrittenLayer WriteLayer(
    QgsMapLayer& layer, const LayerNodes& nodes, const LayerValues& before, const LayerValues& after,
    const RendererSetter& setRenderer)
{
    WrittenLayer written;
    const Changes changes(before, after);
    if (!layer.isValid()) {
        WriteLostLayer(written, layer, nodes, changes);
        return written;
    }
    WriteKept(layer, changes);
    WriteFlags(written, layer, changes);
    WriteScaleColumns(layer, changes);
    WriteSymbolColumns(written, layer, before, after, setRenderer);
    WriteShowing(written, layer, nodes, changes);
    return written;
}

} // namespace Orvane
