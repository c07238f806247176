// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace Orvane {

/// A file with a copy of a map, which may be on a server. It is removed with this object. The map itself is
/// only read, so it may be in a read-only folder, and open elsewhere.
class TemporaryMap
{
public:
    /// Raises the errors of opening a layer database, and DatabaseFailure if there is no room for the copy.
    explicit TemporaryMap(const QString& map);
    TemporaryMap(const TemporaryMap&) = delete;
    TemporaryMap& operator=(const TemporaryMap&) = delete;

    /// The copy.
    QString Path() const { return m_folder.filePath(QStringLiteral("copy.orvane")); }

private:
    QTemporaryDir m_folder;
};

} // namespace Orvane
