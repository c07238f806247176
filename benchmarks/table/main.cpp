// SPDX-License-Identifier: MIT
// How long it takes until the first rows of a large attribute table are painted, as a ratio against a bare
// loop over the first 50 rows of the same file.
//
//     orvane_table_benchmark [ROWS]
#include "shell/features/FeatureSelection.h"
#include "shell/table/AttributeTable.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTableView>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <gdal_priv.h>
#include <limits>
#include <ogrsf_frmts.h>

namespace {

using namespace Orvane;

constexpr int ManyRows = 1000000;
constexpr int RowsOfScreen = 50;
constexpr int Repetitions = 5;

void WriteTable(const QString& path, int rows)
{
    GDALAllRegister();
    GDALDriver& driver = *GetGDALDriverManager()->GetDriverByName("GPKG");
    const GDALDatasetUniquePtr file(driver.Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
    OGRLayer& layer = *file->CreateLayer("rows", nullptr, wkbPoint);
    OGRFieldDefn name("name", OFTString);
    OGRFieldDefn size("size", OFTInteger);
    layer.CreateField(&name);
    layer.CreateField(&size);
    file->StartTransaction();
    for (int row = 0; row < rows; ++row) {
        OGRFeature feature(layer.GetLayerDefn());
        feature.SetField(0, ("street " + QByteArray::number(row * 7 % 99991)).constData());
        feature.SetField(1, row);
        if (layer.CreateFeature(&feature) != OGRERR_NONE)
            qFatal("the table cannot be written");
    }
    file->CommitTransaction();
}

void ReadBare(const QString& path)
{
    const GDALDatasetUniquePtr file(
        GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
    OGRLayer& layer = *file->GetLayer(0);
    for (int row = 0; row < RowsOfScreen; ++row) {
        const OGRFeatureUniquePtr feature(layer.GetNextFeature());
        const QString text = QString::fromUtf8(feature->GetFieldAsString(0));
        if (text.isEmpty())
            qFatal("a row is empty");
    }
}

// Until the first screen has values and is painted.
void ShowTable(const QString& path)
{
    LayerSource source;
    source.layerID = 1;
    source.path = path;
    source.ogrLayer = QStringLiteral("rows");
    FeatureSelection selection;
    AttributeTable table({QStringLiteral("rows"), source}, selection, nullptr);
    table.setAttribute(Qt::WA_DeleteOnClose, false);
    table.show();
    const auto& view = *table.findChild<QTableView*>(QStringLiteral("tblRows"));
    QEventLoop loop;
    QObject::connect(
        static_cast<AttributeModel*>(view.model()), &AttributeModel::RowsShown, &loop, &QEventLoop::quit);
    loop.exec();
    table.grab();
}

double LeastMilliseconds(const std::function<void()>& work)
{
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i < Repetitions; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        least = std::min(least, double(timer.nsecsElapsed()) / 1e6);
    }
    return least;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("rows.gpkg"));
    const int rows = argc > 1 ? std::max(RowsOfScreen, std::atoi(argv[1])) : ManyRows;
    WriteTable(path, rows);
    const double bare = LeastMilliseconds([&] { ReadBare(path); });
    const double table = LeastMilliseconds([&] { ShowTable(path); });
    std::printf(
        "attribute table of %d rows, first screen: bare loop %.1f ms, table %.1f ms, ratio %.1f\n", rows,
        bare, table, table / bare);
    return 0;
}
