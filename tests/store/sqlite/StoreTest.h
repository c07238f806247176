// SPDX-License-Identifier: MIT
#pragma once

#include "store/any/StoreActs.h"
#include "store/sqlite/RawDatabase.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace Orvane::Testing {

/// Scenarios on a layer database file in a separate directory.
class StoreTest : public StoreActs
{
protected:
    /// A path in the test's directory.
    QString PathOf(const QString& name) const { return m_directory.filePath(name); }
    /// A new database file with layers 1 to layerCount, closed again.
    QString MadeFile(int layerCount = 3);
    QString MadeFile(const QString& name, int layerCount);
    /// A file with that content.
    QString FileWith(const QByteArray& content, const QString& name = QStringLiteral("file.ovl"));
    static QByteArray BytesOf(const QString& path);
    /// The names of all files in the test's directory.
    QStringList FilesThere() const;

private:
    QTemporaryDir m_directory;
};

} // namespace Orvane::Testing
