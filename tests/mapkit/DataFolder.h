// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane::Testing {

/// A folder with map data, which is removed after the test.
class DataFolder
{
public:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QString Write(const QString& name, const QByteArray& content) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    /// A GeoJSON file with one feature for each geometry, of type name "a", "b" and so on.
    QString WriteGeometries(const QString& name, std::initializer_list<QByteArray> geometries) const
    {
        QByteArray features;
        char type = 'a';
        for (const QByteArray& geometry : geometries) {
            features += features.isEmpty() ? "" : ",";
            features += R"({"type":"Feature","properties":{"type":")" + QByteArray(1, type++)
                + R"("},"geometry":)" + geometry + "}";
        }
        return Write(name, R"({"type":"FeatureCollection","features":[)" + features + "]}");
    }

    /// A square of ten degrees with its lower left corner there.
    QString WriteSquare(const QString& name, int west = 0, int south = 0) const
    {
        const auto at
            = [](int x, int y) { return "[" + QByteArray::number(x) + "," + QByteArray::number(y) + "]"; };
        return WriteGeometries(
            name,
            {R"({"type":"Polygon","coordinates":[[)" + at(west, south) + "," + at(west + 10, south) + ","
             + at(west + 10, south + 10) + "," + at(west, south + 10) + "," + at(west, south) + "]]}"});
    }

private:
    QTemporaryDir m_folder;
};

} // namespace Orvane::Testing
