// SPDX-License-Identifier: MIT
#include "shell/command/ListCommand.h"

#include "hostkit/StandardShellServices.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/output/PageSettings.h"
#include "shell/command/DataSentences.h"
#include "shell/command/MapCopy.h"
#include "shell/map/MapLayers.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace Orvane {

namespace {

constexpr int ExtentDigits = 12;

QString ListText(const char* text)
{
    return QCoreApplication::translate("ListCommand", text);
}

// West, south, east, north; empty without data.
std::vector<double> ExtentOf(const MapLayer& layer)
{
    const Box bounds = layer.Bounds();
    if (bounds.IsEmpty())
        return {};
    return {bounds.minX, bounds.minY, bounds.maxX, bounds.maxY};
}

qint64 CountOf(const MapLayer& layer)
{
    return layer.features ? qint64(layer.features->Features().size()) : 0;
}

QString LineOf(const MapLayer& layer)
{
    QStringList extent;
    for (const double number : ExtentOf(layer))
        extent << QString::number(number, 'g', ExtentDigits);
    const QString place = extent.join(QLatin1Char(' '));
    if (!layer.raster)
        return ListText(QT_TRANSLATE_NOOP("ListCommand", "%1: features %2, extent %3"))
            .arg(layer.name, QString::number(CountOf(layer)), place);
    const RasterDetails details = layer.raster->Source().Details();
    return ListText(QT_TRANSLATE_NOOP("ListCommand", "%1: raster of %2 x %3 pixels, extent %4"))
        .arg(
            layer.name, QString::number(details.size.width()), QString::number(details.size.height()), place);
}

QJsonObject RasterObject(const RasterDetails& details)
{
    return {
        {QStringLiteral("width"), details.size.width()},
        {QStringLiteral("height"), details.size.height()},
        {QStringLiteral("bands"), details.bands}};
}

QJsonObject ObjectOf(const MapLayer& layer)
{
    QJsonArray extent;
    for (const double number : ExtentOf(layer))
        extent.append(number);
    QJsonObject object{
        {QStringLiteral("name"), layer.name},
        {QStringLiteral("features"), CountOf(layer)},
        {QStringLiteral("extent"), extent}};
    if (layer.raster)
        object.insert(QStringLiteral("raster"), RasterObject(layer.raster->Source().Details()));
    return object;
}

void TellJson(const Terminal& terminal, const QString& system, const std::vector<MapLayer>& layers)
{
    QJsonArray listed;
    for (const MapLayer& layer : layers)
        listed.append(ObjectOf(layer));
    const QJsonObject map{{QStringLiteral("system"), system}, {QStringLiteral("layers"), listed}};
    terminal.out << QString::fromUtf8(QJsonDocument(map).toJson());
    terminal.out.flush();
}

void TellLines(const Terminal& terminal, const QString& system, const std::vector<MapLayer>& layers)
{
    if (!system.isEmpty())
        TellLine(terminal, system);
    for (const MapLayer& layer : layers)
        TellLine(terminal, LineOf(layer));
}

int List(const QString& map, bool isJson, const Terminal& terminal)
{
    const MapCopy copy(map);
    MapDocument& document = copy.Document();
    Progress progress;
    const SourceContents contents = ReadSources(document.Sources(), document.System(), progress);
    const StandardShellServices services;
    MapLayers layers(document, services, PagePixelsPerMillimetre);
    layers.ReadAll();
    layers.TakeFeatures(contents);
    (isJson ? TellJson : TellLines)(terminal, document.System(), layers.All());
    if (contents.failures.empty())
        return ExitCode::Done;
    for (const QString& failure : FailuresWithPaths(contents, document.Sources()))
        TellError(terminal, failure);
    return ExitCode::Problems;
}

} // namespace

int ListCommand(const QStringList& arguments, const Terminal& terminal)
{
    const QCommandLineOption json(
        QStringLiteral("json"), ListText(QT_TRANSLATE_NOOP("ListCommand", "Write JSON, for scripts.")));
    CommandReader reader(ListText(QT_TRANSLATE_NOOP(
        "ListCommand",
        "List the layers of a map: the number of features, and the extent in the map's coordinate system as "
        "west, south, east and north.\n"
        "Exit code: 0 all was read, 1 something was not, 2 the command was not understood.")));
    reader.AddCommand(QStringLiteral("list"));
    reader.RequireWords(1, 1);
    reader.Options().addOption(json);
    reader.Options().addPositionalArgument(
        QStringLiteral("MAP"),
        ListText(QT_TRANSLATE_NOOP("ListCommand", "The map: a file, or a place on a server.")));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    return List(reader.Words().first(), reader.IsSet(json), terminal);
}

} // namespace Orvane
