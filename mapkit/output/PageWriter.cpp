// SPDX-License-Identifier: MIT
#include "mapkit/output/PageWriter.h"

#include "files/FileReplacement.h"
#include "mapkit/common/Progress.h"
#include "mapkit/output/MapPage.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSvgGenerator>

#include <cmath>

namespace Orvane {

namespace {

constexpr int LargestSide = 30000; // pixels; on larger pages painting is not exact
constexpr double InchesPerMetre = 1000 / MillimetresPerInch;

[[noreturn]] void Fail(const QString& reason)
{
    throw RunTimeError(OutputFailed, reason, QStringLiteral("PageWriter"));
}

[[noreturn]] void FailToWrite(const QString& path, const QString& reason)
{
    Fail(QCoreApplication::translate("PageWriter", "\"%1\" cannot be written: %2.")
             .arg(QFileInfo(path).fileName(), reason));
}

void PaintOn(QPaintDevice& device, double dotsPerInch, const MapPage& page, const Progress& progress)
{
    QPainter painter;
    if (!painter.begin(&device))
        Fail(QCoreApplication::translate("PageWriter", "The page cannot be painted."));
    painter.scale(dotsPerInch / PagePixelsPerInch, dotsPerInch / PagePixelsPerInch);
    page.Paint(painter, progress.CancelledFlag());
    painter.end();
    progress.StopIfCancelled();
}

void WritePdf(QIODevice& file, const MapPage& page, const Progress& progress)
{
    const PageSettings& settings = page.Settings();
    QPdfWriter writer(&file);
    writer.setResolution(settings.resolution);
    writer.setPageSize(QPageSize(settings.size, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(settings.title);
    writer.setCreator(QCoreApplication::applicationName());
    PaintOn(writer, settings.resolution, page, progress);
}

void WriteSvg(QIODevice& file, const MapPage& page, const Progress& progress)
{
    const QSizeF size = page.Layout().page;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(int(PagePixelsPerInch));
    generator.setSize(size.toSize());
    generator.setViewBox(QRectF({0, 0}, size));
    generator.setTitle(page.Settings().title);
    generator.setDescription({});
    PaintOn(generator, PagePixelsPerInch, page, progress);
}

QImage EmptyPicture(const PageSettings& settings)
{
    const QSizeF exact = settings.size * (settings.resolution / MillimetresPerInch);
    const QSize size(int(std::lround(exact.width())), int(std::lround(exact.height())));
    QImage picture;
    if (std::max(size.width(), size.height()) <= LargestSide)
        picture = QImage(size.expandedTo({1, 1}), QImage::Format_RGB32);
    if (picture.isNull()) {
        const QLocale locale;
        Fail(QCoreApplication::translate("PageWriter", "A picture of %1 by %2 pixels is too large.")
                 .arg(locale.toString(exact.width(), 'f', 0), locale.toString(exact.height(), 'f', 0)));
    }
    picture.setDotsPerMeterX(int(std::lround(settings.resolution * InchesPerMetre)));
    picture.setDotsPerMeterY(picture.dotsPerMeterX());
    return picture;
}

void WritePng(QIODevice& file, const QString& path, const MapPage& page, const Progress& progress)
{
    QImage picture = EmptyPicture(page.Settings());
    picture.fill(Qt::white);
    PaintOn(picture, page.Settings().resolution, page, progress);
    if (!picture.save(&file, "PNG"))
        FailToWrite(path, file.errorString());
}

} // namespace

std::optional<PageFormat> FormatOfFile(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == QLatin1String("pdf"))
        return PageFormat::Pdf;
    if (ending == QLatin1String("svg"))
        return PageFormat::Svg;
    if (ending == QLatin1String("png"))
        return PageFormat::Png;
    return std::nullopt;
}

void WritePage(const MapPage& page, const QString& path, Progress& progress)
{
    const std::optional<PageFormat> format = FormatOfFile(path);
    if (!format)
        FailToWrite(
            path, QCoreApplication::translate("PageWriter", "its name must end in .pdf, .svg or .png"));
    FileReplacement file(path);
    if (!file.Begin())
        FailToWrite(path, file.Reason());
    switch (*format) {
    case PageFormat::Pdf:
        WritePdf(file, page, progress);
        break;
    case PageFormat::Svg:
        WriteSvg(file, page, progress);
        break;
    case PageFormat::Png:
        WritePng(file, path, page, progress);
        break;
    }
    if (!file.Commit())
        FailToWrite(path, file.Reason());
}

void PrintPage(const MapPage& page, QPrinter& printer, Progress& progress)
{
    PaintOn(printer, printer.resolution(), page, progress);
}

} // namespace Orvane
