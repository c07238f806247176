// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

#include <memory>

namespace Orvane {

class MapDocument;

/// A copy of a map file that can be changed freely and is removed with this object. The map itself is opened
/// for reading only, so it may be in a read-only folder, and open elsewhere.
class MapCopy
{
public:
    /// Raises the errors of opening a layer database, and DatabaseFailure if there is no room for the copy.
    explicit MapCopy(const QString& path);
    ~MapCopy();
    MapCopy(const MapCopy&) = delete;
    MapCopy& operator=(const MapCopy&) = delete;

    MapDocument& Document() const { return *m_document; }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<MapDocument> m_document;
};

} // namespace Orvane
