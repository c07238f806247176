// SPDX-License-Identifier: MIT
#include "mapkit/output/PageWriter.h"

#include "mapkit/common/Progress.h"
#include "mapkit/output/OutputFixture.h"
#include "support/FileSizeLimit.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPrinter>
#include <QRegularExpression>
#include <QSvgRenderer>

namespace Orvane {

using namespace Testing;

namespace {

class PageWriterTest : public OutputFixture
{
protected:
    QString Write(const QString& name, const PageSettings& settings)
    {
        Progress progress;
        const QString path = m_folder.Path(name);
        WritePage(Page(settings), path, progress);
        return path;
    }

    static QByteArray Content(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    static QImage Rendered(const QString& svg, QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        QSvgRenderer(svg).render(&painter);
        return image;
    }
};

} // namespace

TEST_F(PageWriterTest, TheEndingNamesTheFormat)
{
    EXPECT_EQ(FormatOfFile("a/b.pdf"), PageFormat::Pdf);
    EXPECT_EQ(FormatOfFile("b.SVG"), PageFormat::Svg);
    EXPECT_EQ(FormatOfFile("b.c.Png"), PageFormat::Png);
    EXPECT_EQ(FormatOfFile("b.tif"), std::nullopt);
    EXPECT_EQ(FormatOfFile("pdf"), std::nullopt);
}

TEST_F(PageWriterTest, APictureHasTheSizeAndTheResolution)
{
    AddSquare("Square");
    PageSettings settings = Bare();
    settings.size = {254, 127};
    settings.resolution = 150;
    const QImage image(Write("map.png", settings));
    EXPECT_EQ(image.size(), QSize(1500, 750));
    EXPECT_NEAR(image.dotsPerMeterX(), 150 / 0.0254, 1);
    EXPECT_EQ(image.pixelColor(750, 375), QColor(Qt::red));
}

TEST_F(PageWriterTest, ADocumentHasTheSizeAndTheTitle)
{
    AddSquare("Square");
    PageSettings settings = Bare();
    settings.size = {254, 127};
    settings.title = "Squares";
    const QByteArray content = Content(Write("map.pdf", settings));
    EXPECT_TRUE(content.startsWith("%PDF-"));
    EXPECT_TRUE(content.contains("/MediaBox [0 0 720.") || content.contains("/MediaBox [0 0 720 360"))
        << content.mid(content.indexOf("/MediaBox"), 60).constData();
    EXPECT_FALSE(content.contains("/Subtype /Image")) << "lines and areas stay lines and areas";
}

TEST_F(PageWriterTest, ADrawingShowsWhatAPictureShows)
{
    AddSquare("Square");
    PageSettings settings = Bare();
    settings.scaleDenominator = 20000;
    settings.margin = 10;
    const QString svg = Write("map.svg", settings);
    const QImage drawn = Rendered(svg, {1000, 1000});
    const QImage painted = Painted(Page(settings));
    for (const QPoint place :
         {QPoint(50, 50), QPoint(150, 150), QPoint(500, 500), QPoint(260, 500), QPoint(245, 500)})
        EXPECT_EQ(drawn.pixelColor(place), painted.pixelColor(place)) << place.x() << ',' << place.y();
    EXPECT_TRUE(QString::fromUtf8(Content(svg)).contains(QRegularExpression("width=\"100(\\.\\d+)?mm\"")));
}

TEST_F(PageWriterTest, ADrawingKeepsPatternsAsPictures)
{
    AddSquare("Square").values.fillStyle = 16;
    const QString svg = Write("map.svg", Bare());
    const QImage drawn = Rendered(svg, {1000, 1000});
    int red = 0;
    for (int x = 400; x < 600; ++x)
        red += drawn.pixelColor(x, 500).green() < 128 ? 1 : 0;
    EXPECT_GT(red, 40);
    EXPECT_LT(red, 160);
}

TEST_F(PageWriterTest, AnythingElseIsRefusedAndNothingIsWritten)
{
    EXPECT_THROW(Write("map.gif", Bare()), RunTimeError);
    EXPECT_FALSE(QFileInfo::exists(m_folder.Path("map.gif")));
}

TEST_F(PageWriterTest, AFileThatCannotBeWrittenIsNamed)
{
    try {
        Write("no/such/folder/map.pdf", Bare());
        FAIL() << "nothing was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), OutputFailed);
        EXPECT_TRUE(error.Description().contains("map.pdf")) << error.what();
    }
}

TEST_F(PageWriterTest, WithoutRoomTheOldFileStaysInEachFormat)
{
    AddSquare("Square");
    for (const char* name : {"map.pdf", "map.svg", "map.png"}) {
        const qint64 size = QFileInfo(Write(name, Bare())).size();
        m_folder.Write(name, "old");
        const QStringList before = QDir(m_folder.Path("")).entryList(QDir::Files);
        for (qint64 room = 0; room < size - 16; room += size / 9 + 1) { // a document varies by some bytes
            const FileSizeLimit limit(room);
            EXPECT_THROW(Write(name, Bare()), RunTimeError) << name << ' ' << room << " of " << size;
            EXPECT_EQ(Content(m_folder.Path(name)), "old") << name;
        }
        {
            const FileSizeLimit limit(size - 16);
            EXPECT_THROW(Write(name, Bare()), RunTimeError) << name;
        }
        EXPECT_EQ(QDir(m_folder.Path("")).entryList(QDir::Files), before);
        EXPECT_GT(QFileInfo(Write(name, Bare())).size(), size - 16) << name;
    }
}

TEST_F(PageWriterTest, AHugePictureIsRefusedAndTheOldFileStays)
{
    const QString old = m_folder.Write("map.png", "old");
    EXPECT_THROW(Write("map.png", Bare(9000)), RunTimeError);
    EXPECT_EQ(Content(old), "old");
}

TEST_F(PageWriterTest, CancellingLeavesTheOldFile)
{
    AddSquare("Square");
    for (const char* name : {"map.png", "map.pdf", "map.svg"}) {
        const QString old = m_folder.Write(name, "old");
        Progress progress;
        progress.Cancel();
        EXPECT_THROW(WritePage(Page(Bare()), old, progress), Cancelled);
        EXPECT_EQ(Content(old), "old");
    }
}

TEST_F(PageWriterTest, APrinterGetsThePage)
{
    AddSquare("Square");
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(m_folder.Path("printed.pdf"));
    Progress progress;
    PrintPage(Page(Bare()), printer, progress);
    EXPECT_TRUE(Content(m_folder.Path("printed.pdf")).startsWith("%PDF-"));
}

} // namespace Orvane
