// SPDX-License-Identifier: MIT
#include "qgis/project/LayerOwnValues.h"

#include "qgis/layers/KeptValues.h"
#include "qgis/layers/LayerFlags.h"
#include "qgis/layers/LayerNodes.h"
#include "qgis/layers/LayerTick.h"
#include "qgis/layers/OverrideMode.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QDomDocument>
#include <qgsmaplayer.h>
#include <qgsmaplayerstylemanager.h>
#include <qgsobjectcustomproperties.h>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

constexpr std::array CarriedNames{"id", "idOf", "Code", "Selectable"};

void CopyProperty(QgsObjectCustomProperties& to, const QgsMapLayer& from, const char* name)
{
    const QString property = KeptValues::PropertyName(name);
    const QVariant value = from.customProperty(property);
    if (value.isValid())
        to.setValue(property, value);
    else
        to.remove(property);
}

void GiveBack(QgsMapLayer& layer, const QgsObjectCustomProperties& own)
{
    for (const char* name : CarriedNames) {
        const QString property = KeptValues::PropertyName(name);
        const QVariant value = own.value(property);
        if (value.isValid())
            layer.setCustomProperty(property, value);
        else
            layer.removeCustomProperty(property);
    }
}

bool HasCarried(const QgsObjectCustomProperties& properties, const QgsMapLayer& layer)
{
    return std::all_of(CarriedNames.begin(), CarriedNames.end(), [&](const char* name) {
        const QString property = KeptValues::PropertyName(name);
        return properties.value(property).toString() == layer.customProperty(property).toString();
    });
}

QString KeyOf(const QgsMapLayer& layer, const QString& style)
{
    QStringList parts{layer.id(), style};
    for (const char* name : CarriedNames)
        parts << layer.customProperty(KeptValues::PropertyName(name)).toString();
    return parts.join(QLatin1Char('\n'));
}

// Empty if the style has the values already, or cannot be read.
QString CarriedStyle(const QgsMapLayer& layer, const QString& text)
{
    QDomDocument document;
    if (!document.setContent(text))
        return {};
    QDomElement root = document.documentElement();
    QgsObjectCustomProperties properties;
    properties.readXml(root);
    if (HasCarried(properties, layer))
        return {};
    for (const char* name : CarriedNames)
        CopyProperty(properties, layer, name);
    properties.writeXml(root, document);
    return document.toString();
}

void RestoreFlags(QgsMapLayer& layer, const LayerValues& known)
{
    const Value& hitable = ValueOf(known, "Hitable");
    const Value& enquirable = ValueOf(known, "Enquirable");
    const PointingFlags flags{ToBoolean(hitable), ToBoolean(enquirable)};
    const bool identifiable = layer.flags().testFlag(QgsMapLayer::Identifiable);
    if (identifiable || (flags.hitable && flags.enquirable)) // QGIS says it all
        return;
    KeptValues::Keep(layer, "Hitable", flags.hitable);
    KeptValues::Keep(layer, "Enquirable", flags.enquirable);
}

void RestoreHiding(QgsMapLayer& layer, const LayerNodes& nodes, const LayerValues& known)
{
    const bool wasHidden = ToInt32(ValueOf(known, "OverrideMode")) == HiddenMode;
    const bool isHidden = ReadOverrideMode(layer, nodes) == HiddenMode;
    if (isHidden && !wasHidden)
        return KeptValues::Keep(layer, "OverrideMode", Value::Null());
    const Value ticked = ReadVisible(layer, nodes);
    if (wasHidden && !isHidden && !ticked.IsNull() && !ToBoolean(ticked)) {
        WriteOverrideMode(layer, nodes, HiddenMode);
        SetTickBeforeHiding(layer, ToBoolean(ValueOf(known, "Visible")));
    }
}

} // namespace

void LayerOwnValues::SwitchStyle(QgsMapLayer& layer, const LayerNodes& nodes, const QString& style)
{
    const qint32 mode = ReadOverrideMode(layer, nodes);
    WriteOverrideMode(layer, nodes, NormalMode); // the style that is left keeps its opacity
    QgsObjectCustomProperties own;
    for (const char* name : CarriedNames)
        CopyProperty(own, layer, name);
    const PointingFlags pointing = ReadPointing(layer);
    const Value locked = ReadLocked(layer);
    layer.styleManager()->setCurrentStyle(style);
    GiveBack(layer, own);
    WritePointing(layer, pointing);
    if (!locked.IsNull())
        WriteLocked(layer, ToBoolean(locked));
    WriteOverrideMode(layer, nodes, mode);
}

void LayerOwnValues::Restore(QgsMapLayer& layer, const LayerNodes& nodes, const LayerValues& known)
{
    if (ValueOf(known, "Selectable").IsNull())
        return; // its data were missing, or QGIS keeps nothing with it
    if (const qint32 code = ToInt32(ValueOf(known, "Code")); code != 0 || KeptValues::Whole(layer, "Code"))
        KeptValues::Keep(layer, "Code", code);
    const bool selectable = ToBoolean(ValueOf(known, "Selectable"));
    if (KeptValues::Flag(layer, "Selectable").value_or(true) != selectable)
        KeptValues::Keep(layer, "Selectable", selectable);
    RestoreFlags(layer, known);
    RestoreHiding(layer, nodes, known);
}

void LayerOwnValues::CarryToStyles(QgsMapLayer& layer, CarriedStyles& carried)
{
    QgsMapLayerStyleManager& styles = *layer.styleManager();
    for (const QString& name : styles.styles()) {
        if (name == styles.currentStyle())
            continue;
        QString& known = carried[KeyOf(layer, name)];
        if (known == styles.style(name).xmlData())
            continue;
        const QString text = CarriedStyle(layer, styles.style(name).xmlData());
        if (!text.isEmpty()) {
            styles.removeStyle(name);
            styles.addStyle(name, QgsMapLayerStyle(text));
        }
        known = styles.style(name).xmlData();
    }
}

} // namespace Orvane
