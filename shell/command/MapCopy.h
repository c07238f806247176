// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

#include <memory>

namespace Orvane {

class MapDocument;

/// A copy of a map file that can be changed freely and ends with the object. The map itself is opened for
/// reading only, so it may lie where nothing can be written, and be open elsewhere.
class MapCopy
{
public:
    /// Raises what opening a layer database raises.
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
