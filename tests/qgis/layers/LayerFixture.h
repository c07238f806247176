// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerReader.h"
#include "qgis/layers/LayerWriter.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <qgslayertree.h>
#include <qgsproject.h>
#include <qgsrasterlayer.h>
#include <qgsvectorlayer.h>

#include <gtest/gtest.h>
#include <memory>

namespace Orvane::Testing {

/// A project with layers in memory.
class LayerFixture : public testing::Test
{
protected:
    /// Adds a layer, which the project owns. kind: "Polygon", "LineString" or "Point".
    QgsVectorLayer& Add(const char* kind, const char* name = "Parcels")
    {
        const QString source
            = QString::fromLatin1(kind) + QStringLiteral("?crs=EPSG:3857&field=people:integer");
        auto layer
            = std::make_unique<QgsVectorLayer>(source, QString::fromLatin1(name), QStringLiteral("memory"));
        EXPECT_TRUE(layer->isValid());
        QgsVectorLayer& added = *layer;
        project.addMapLayer(layer.release());
        return added;
    }

    /// A layer of pixels.
    QgsRasterLayer& AddRaster()
    {
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        const QString path = m_pictures.filePath(QStringLiteral("air.png"));
        EXPECT_TRUE(picture.save(path));
        QFile place(m_pictures.filePath(QStringLiteral("air.pgw")));
        EXPECT_TRUE(place.open(QIODevice::WriteOnly));
        place.write("10\n0\n0\n-10\n5\n35\n");
        place.close();
        auto* layer = new QgsRasterLayer(path, QStringLiteral("Air"), QStringLiteral("gdal"));
        EXPECT_TRUE(layer->isValid());
        project.addMapLayer(layer);
        return *layer;
    }

    Value Get(const QgsMapLayer& layer, std::string_view column)
    {
        return ValueOf(ReadLayer(layer, project), column);
    }

    /// Writes one column.
    WrittenLayer Set(QgsMapLayer& layer, std::string_view column, const Value& value)
    {
        const LayerValues before = ReadLayer(layer, project);
        LayerValues after = before;
        SetValue(after, column, value);
        return WriteLayer(layer, project, before, after);
    }

    /// Expects the column to be read as it is written.
    void ExpectRoundTrip(QgsMapLayer& layer, std::string_view column, const Value& value)
    {
        const WrittenLayer written = Set(layer, column, value);
        EXPECT_TRUE(written.refused.empty()) << column;
        EXPECT_TRUE(Get(layer, column).IsIdenticalTo(value)) << column;
    }

private:
    QTemporaryDir m_pictures; // outlives the layers

protected:
    QgsProject project;
};

} // namespace Orvane::Testing
