// SPDX-License-Identifier: MIT
// The functions by which QGIS finds a plug-in.
#include "qgis/plugin/LayerControlPlugin.h"

#include <qgis.h>
#include <qgisplugin.h>

QGISEXTERN QgisPlugin* classFactory(QgisInterface* qgis)
{
    return new Orvane::LayerControlPlugin(*qgis);
}

QGISEXTERN const QString* name()
{
    static QString text; // QGIS keeps the pointer; the language is known later than the name
    text = Orvane::LayerControlPlugin::tr("Layer Control");
    return &text;
}

QGISEXTERN const QString* description()
{
    static QString text;
    text = Orvane::LayerControlPlugin::tr(
        "Edits the properties of many layers at once, and keeps them in schemes.");
    return &text;
}

QGISEXTERN const QString* category()
{
    static const QString text = QStringLiteral("Plugins");
    return &text;
}

QGISEXTERN int type()
{
    return QgisPlugin::UI;
}

QGISEXTERN const QString* version()
{
    static const QString text = QStringLiteral(ORVANE_VERSION);
    return &text;
}

QGISEXTERN const QString* icon()
{
    static const QString text = QStringLiteral(":/orvane/qgis/orvane.svg");
    return &text;
}

QGISEXTERN const QString* experimental()
{
    static const QString text = QStringLiteral("false");
    return &text;
}

QGISEXTERN void unload(QgisPlugin* plugin)
{
    delete plugin;
}
