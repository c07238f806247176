// SPDX-License-Identifier: MIT
#include "qgis/session/PaperProject.h"

#include "store/ILayerStore.h"

#include <OrvaneShellLib/LayerColumns.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <qgscategorizedsymbolrenderer.h>
#include <qgsfillsymbollayer.h>
#include <qgslinesymbollayer.h>
#include <qgsmarkersymbollayer.h>
#include <qgspallabeling.h>
#include <qgsrenderer.h>
#include <qgssymbol.h>
#include <qgsvectorlayer.h>
#include <qgsvectorlayerjoininfo.h>
#include <qgsvectorlayerlabeling.h>

namespace Orvane::Testing::Paper {

const std::vector<std::string> symbolColumns{"Color",        "FillForeColor", "FillBackColor",
                                             "OutlineStyle", "FillStyle",     "LineThickness"};

const std::vector<std::string> columns = [] {
    std::vector<std::string> all{"Name",     "Code",       "Visible",     "Selectable",   "locked",
                                 "Hitable",  "Enquirable", "MinVisScale", "SnapRequired", "MaxVisScale",
                                 "Priority", "Style",      "OverrideMode"};
    all.insert(all.end(), symbolColumns.begin(), symbolColumns.end());
    return all;
}();

namespace {

QVariant VariantOf(const Value& value)
{
    if (value.IsNull())
        return {};
    return value.IsNumber() || value.IsBoolean() ? QVariant(ToDouble(value)) : QVariant(ToText(value));
}

QString FillOf(const QgsSymbolLayer& layer)
{
    if (const auto* fill = dynamic_cast<const QgsSimpleFillSymbolLayer*>(&layer))
        return fill->fillColor().name();
    if (const auto* marker = dynamic_cast<const QgsSimpleMarkerSymbolLayer*>(&layer))
        return marker->fillColor().name();
    return {};
}

// Of one class: its name, and its fill if the classes differ in it.
QString ClassOf(const QgsLegendSymbolItem& item, bool withFill)
{
    QString text = item.label() + '=' + item.ruleKey();
    if (!item.symbol())
        return text;
    for (const QgsSymbolLayer* layer : item.symbol()->symbolLayers()) {
        if (withFill)
            text += FillOf(*layer);
        const QgsPropertyCollection& data = layer->dataDefinedProperties();
        for (const int key : data.propertyKeys())
            text += data.property(key).asExpression();
    }
    return text;
}

} // namespace

QString UntouchedOf(const QgsMapLayer& layer)
{
    const auto* vectors = qobject_cast<const QgsVectorLayer*>(&layer);
    if (!vectors || !vectors->renderer())
        return {};
    QStringList parts{vectors->renderer()->type(), vectors->subsetString()};
    const QgsLegendSymbolList items = vectors->renderer()->legendSymbolItems();
    std::set<QString> fills;
    for (const QgsLegendSymbolItem& item : items) {
        QString fill;
        for (const QgsSymbolLayer* part :
             item.symbol() ? item.symbol()->symbolLayers() : QgsSymbolLayerList())
            fill += FillOf(*part);
        fills.insert(fill);
    }
    for (const QgsLegendSymbolItem& item : items)
        parts << ClassOf(item, fills.size() > 1);
    if (vectors->labeling())
        parts << vectors->labeling()->settings().fieldName;
    for (const QgsVectorLayerJoinInfo& join : vectors->vectorJoins())
        parts << join.joinFieldName();
    return parts.join('|');
}

Step StepBetween(const Layers& before, const Layers& after)
{
    Step step;
    for (const auto& [id, layer] : after) {
        for (const auto& [column, value] : layer.row) {
            if (before.at(id).row.at(column) == value)
                continue;
            step.before[id][column] = before.at(id).row.at(column);
            step.after[id][column] = value;
        }
    }
    return step;
}

bool IsPresent(const std::map<qint32, Row>& state, const Layers& layers)
{
    for (const auto& [id, row] : state) {
        const auto layer = layers.find(id);
        if (layer == layers.end())
            return false;
        for (const auto& [column, value] : row) {
            if (layer->second.row.at(column) != value)
                return false;
        }
    }
    return true;
}

void Set(const std::map<qint32, Row>& state, Layers& layers)
{
    for (const auto& [id, row] : state) {
        for (const auto& [column, value] : row)
            layers.at(id).row[column] = value;
    }
}

Layers ReadRows(ILayerStore& store)
{
    Layers layers;
    const auto row = store.OpenRecordset("SELECT * FROM Layers");
    for (; !row->AtEOF(); row->MoveNext()) {
        Layer& layer = layers[ToInt32(row->Field("LayerID"))];
        for (const std::string& column : columns)
            layer.row[column] = VariantOf(row->Field(column));
    }
    return layers;
}

QStringList Differences(const Layers& expected, const Layers& actual)
{
    QStringList lines;
    for (const auto& [id, layer] : expected) {
        const auto found = actual.find(id);
        if (found == actual.end()) {
            lines << QStringLiteral("%1 is missing").arg(layer.row.at("Name").toString());
            continue;
        }
        for (const auto& [column, value] : layer.row) {
            const QVariant& is = found->second.row.at(column);
            if (is != value)
                lines << QStringLiteral("%1.%2: %3, not %4")
                             .arg(layer.row.at("Name").toString(), QString::fromStdString(column))
                             .arg(is.isValid() ? is.toString() : "null")
                             .arg(value.isValid() ? value.toString() : "null");
        }
    }
    for (const auto& [id, layer] : actual) {
        if (!expected.count(id))
            lines << QStringLiteral("%1 should not be there").arg(layer.row.at("Name").toString());
    }
    return lines;
}

} // namespace Orvane::Testing::Paper
