// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerSchemes.h"
#include "mapkit/Drawings.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/output/MapPage.h"
#include "mapkit/output/PageWriter.h"
#include "shell/command/ExportCommand.h"
#include "sweep/SweepCommand.h"
#include "sweep/SweepData.h"
#include "sweep/SweepHost.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QTextStream>

namespace Orvane::Testing {

namespace {

const PageSettings SmallPage{{60, 40}, 2, 60, QStringLiteral("Field"), true, true, 0};

/// A page of one area, on a map of its own.
struct OpenPage {
    std::unique_ptr<MapDocument> map = MapDocument::Untitled();
    StandardShellServices services;
    MapPage page = Made();

    MapPage Made() const
    {
        const std::vector<MapLayer> layers{FilledLayer(1, Qt::red, Area(500000, 5300000, 501000, 5301000))};
        const PageContents contents{layers, QStringLiteral("EPSG:32632"), layers.front().features->Bounds()};
        return {map->Database(), services, contents, SmallPage};
    }
};

CommandPreparation WritingPage(const char* name)
{
    return [name](const SweepBench& bench) -> PreparedCommand {
        bench.folder.Write(name, "old");
        return {[path = bench.folder.PathOf(name), open = std::make_shared<OpenPage>()] {
            Progress progress;
            WritePage(open->page, path, progress);
        }};
    };
}

// A map whose data can be read, with a scheme.
QString MakeDrawableMap(const SweepFolder& folder)
{
    QString path = folder.PathOf("drawable.orvane");
    MapDocument::Make(path, IfExists::Refuse, [&](MapDocument& map) {
        AddToMap(map, FindSweepData(folder));
        LayerSchemes(map.Database()).Create(QStringLiteral("Night"));
    });
    return path;
}

// What it says is raised.
void RunExport(const QStringList& arguments)
{
    QString text;
    QTextStream out(&text);
    QTextStream errors(&text);
    if (ExportCommand(arguments, {out, errors}) != ExitCode::Done)
        throw RunTimeError(1, QStringLiteral("orvane --export: ") + text);
}

PreparedCommand PrepareExport(const SweepBench& bench)
{
    bench.folder.Write("page.svg", "old");
    const QStringList arguments{QStringLiteral("orvane"),   MakeDrawableMap(bench.folder),
                                QStringLiteral("--export"), bench.folder.PathOf("page.svg"),
                                QStringLiteral("--scheme"), QStringLiteral("Night")};
    return {[arguments] { RunExport(arguments); }};
}

CommandPreparation WritingScheme(bool isThere)
{
    return [isThere](const SweepBench& bench) -> PreparedCommand {
        if (isThere)
            bench.folder.Write("night.json", "old");
        const auto host = std::make_shared<SweepHost>(bench.folder);
        return {
            [host, path = bench.folder.PathOf("night.json")] {
                host->client.ExportScheme(QStringLiteral("Night"), path);
            },
            host->store.get()};
    };
}

} // namespace

std::vector<SweepCommand> OutputCommands()
{
    return {
        {"output: page as PDF", WritingPage("page.pdf")},
        {"output: page as SVG", WritingPage("page.svg")},
        {"output: page as PNG", WritingPage("page.png")},
        {"output: orvane --export", PrepareExport},
        {"output: scheme file", WritingScheme(false)},
        {"output: scheme over another file", WritingScheme(true)},
    };
}

} // namespace Orvane::Testing
