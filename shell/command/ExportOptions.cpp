// SPDX-License-Identifier: MIT
#include "shell/command/ExportOptions.h"

#include "mapkit/output/PageWriter.h"
#include "shell/command/PaperSize.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <cmath>

namespace Orvane {

namespace {

constexpr int ScreenResolution = 96; // of a picture that is measured in pixels
constexpr int PaperResolution = 300;
constexpr double LargestScale = 1; // denominators
constexpr double SmallestScale = 1e10;

// A mistake in an option's value; caught below.
class Mistake : public RunTimeError
{
public:
    explicit Mistake(const QString& text) : RunTimeError(OutputFailed, text) { }
};

QString ExportText(const char* text)
{
    return QCoreApplication::translate("ExportCommand", text);
}

QCommandLineOption Option(const char* name, const char* help, const char* value = "")
{
    return QCommandLineOption(QString::fromLatin1(name), ExportText(help), QString::fromLatin1(value));
}

struct Options {
    QCommandLineOption file = Option(
        "export",
        QT_TRANSLATE_NOOP(
            "ExportCommand", "The file to write; its extension .pdf, .svg or .png sets the format."),
        "FILE");
    QCommandLineOption scheme = Option(
        "scheme",
        QT_TRANSLATE_NOOP(
            "ExportCommand", "Draw the layers as this scheme has them; the map file stays as it is."),
        "NAME");
    QCommandLineOption scale = Option(
        "scale", QT_TRANSLATE_NOOP("ExportCommand", "Draw at the scale 1:N around the middle of the map."),
        "N");
    QCommandLineOption size = Option(
        "size",
        QT_TRANSLATE_NOOP(
            "ExportCommand", "A5 to A0, Letter, Legal, Tabloid, 200x150mm or 1600x900px. The default is A4."),
        "SIZE");
    QCommandLineOption portrait
        = Option("portrait", QT_TRANSLATE_NOOP("ExportCommand", "Use portrait orientation."));
    QCommandLineOption resolution = Option(
        "resolution",
        QT_TRANSLATE_NOOP("ExportCommand", "Dots per inch. The default is 300, or 96 for a size in pixels."),
        "DPI");
    QCommandLineOption title = Option(
        "title",
        QT_TRANSLATE_NOOP(
            "ExportCommand", "The title. The default is the name of the map; \"\" for no title."),
        "TEXT");
    QCommandLineOption noLegend
        = Option("no-legend", QT_TRANSLATE_NOOP("ExportCommand", "Leave the legend out."));
    QCommandLineOption noScaleBar
        = Option("no-scale-bar", QT_TRANSLATE_NOOP("ExportCommand", "Leave the scale bar out."));
    QCommandLineOption mapOnly = Option(
        "map-only", QT_TRANSLATE_NOOP("ExportCommand", "Nothing but the map, up to the edges of the page."));
};

// A number within limits; the mistake names the option.
double NumberOf(const CommandReader& reader, const QCommandLineOption& option, double least, double most)
{
    bool ok = false;
    const double number = reader.Value(option).toDouble(&ok);
    if (!ok || !(number >= least && number <= most)) {
        throw Mistake(ExportText(QT_TRANSLATE_NOOP("ExportCommand", "--%1 needs a number from %2 to %3."))
                          .arg(option.names().first())
                          .arg(least, 0, 'f', 0)
                          .arg(most, 0, 'f', 0));
    }
    return number;
}

PaperSize SizeOf(const CommandReader& reader, const Options& options)
{
    const QString text = reader.IsSet(options.size) ? reader.Value(options.size) : QStringLiteral("A4");
    const auto size = ReadPaperSize(text, reader.IsSet(options.portrait));
    if (!size)
        throw Mistake(
            ExportText(QT_TRANSLATE_NOOP("ExportCommand", "\"%1\" is not a valid page size.")).arg(text));
    return *size;
}

PageSettings PageOf(const CommandReader& reader, const Options& options)
{
    const PaperSize paper = SizeOf(reader, options);
    PageSettings page;
    page.resolution = paper.inPixels ? ScreenResolution : PaperResolution;
    if (reader.IsSet(options.resolution))
        page.resolution
            = int(std::lround(NumberOf(reader, options.resolution, LeastResolution, MostResolution)));
    page.size = paper.Millimetres(page.resolution);
    if (reader.IsSet(options.scale))
        page.scaleDenominator = NumberOf(reader, options.scale, LargestScale, SmallestScale);
    page.legend = !reader.IsSet(options.noLegend);
    page.scaleBar = !reader.IsSet(options.noScaleBar);
    page.title = QFileInfo(reader.Words().value(0)).completeBaseName();
    if (reader.IsSet(options.title))
        page.title = reader.Value(options.title);
    if (reader.IsSet(options.mapOnly))
        page
            = {.size = page.size,
               .margin = 0,
               .resolution = page.resolution,
               .title = {},
               .legend = false,
               .scaleBar = false,
               .scaleDenominator = page.scaleDenominator};
    return page;
}

ExportRequest RequestOf(const CommandReader& reader, const Options& options)
{
    ExportRequest request{reader.Words().value(0), reader.Value(options.file), {}, PageOf(reader, options)};
    if (!FormatOfFile(request.file))
        throw Mistake(ExportText(
            QT_TRANSLATE_NOOP("ExportCommand", "The file to export must end in .pdf, .svg or .png.")));
    if (reader.IsSet(options.scheme))
        request.scheme = reader.Value(options.scheme);
    return request;
}

} // namespace

std::variant<int, ExportRequest> ReadExportOptions(const QStringList& arguments, const Terminal& terminal)
{
    const Options options;
    CommandReader reader(ExportText(QT_TRANSLATE_NOOP(
        "ExportCommand",
        "Draw a map as PDF, SVG or PNG. The map file is only read.\n"
        "Exit code: 0 all was drawn, 1 something was not, 2 the command was not understood.")));
    reader.RequireWords(1, 1);
    reader.Options().addOptions(
        {options.file, options.scheme, options.scale, options.size, options.portrait, options.resolution,
         options.title, options.noLegend, options.noScaleBar, options.mapOnly});
    reader.Options().addPositionalArgument(
        QStringLiteral("MAP"),
        ExportText(QT_TRANSLATE_NOOP("ExportCommand", "The map: a file, or a place on a server.")));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    try {
        return RequestOf(reader, options);
    } catch (const Mistake& mistake) {
        return reader.Refuse(terminal, mistake.Description());
    }
}

} // namespace Orvane
