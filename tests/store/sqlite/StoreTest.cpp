// SPDX-License-Identifier: MIT
#include "store/sqlite/StoreTest.h"

#include <QDir>
#include <QFile>

namespace Orvane::Testing {

QString StoreTest::MadeFile(int layerCount)
{
    return MadeFile(QStringLiteral("map.ovl"), layerCount);
}

QString StoreTest::MadeFile(const QString& name, int layerCount)
{
    const auto database = SqliteLayerDatabase::Create(PathOf(name));
    AddLayers(*database, layerCount);
    return PathOf(name);
}

QString StoreTest::FileWith(const QByteArray& content, const QString& name)
{
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
}

QByteArray StoreTest::BytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

QStringList StoreTest::FilesThere() const
{
    return QDir(m_directory.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

} // namespace Orvane::Testing
