// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace Orvane::Testing {

/// A folder with a map, which is made again for each run. Its place stays the same, so that what is stored
/// about it does too.
class SweepFolder
{
public:
    /// Makes the map, which has three layers, two groups and two schemes. Raises errors of the store.
    SweepFolder();

    /// Leaves nothing in the folder but the map as it was made.
    void Reset() const;

    /// The folder itself.
    const QString& Path() const { return m_run; }
    /// A path in the folder.
    QString PathOf(const char* name) const { return m_run + QLatin1Char('/') + QLatin1String(name); }
    QString MapPath() const { return PathOf("map.orvane"); }
    /// The map as it was made; only to be copied.
    const QString& OriginalMap() const { return m_original; }
    /// A path beside the folder, for what is no result of a command.
    QString PathBeside(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    /// Writes a file into the folder.
    void Write(const char* name, const QByteArray& content) const;

private:
    QTemporaryDir m_folder;
    QString m_run = m_folder.filePath(QStringLiteral("run"));
    QString m_original = m_folder.filePath(QStringLiteral("original.orvane"));
};

} // namespace Orvane::Testing
