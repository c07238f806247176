// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/TemporaryMap.h"

#include <memory>

namespace Orvane {

class MapDocument;

/// A copy of a map that can be changed freely and is removed with this object. The map may be on a server.
class MapCopy
{
public:
    /// Raises what TemporaryMap raises.
    explicit MapCopy(const QString& map);
    ~MapCopy();
    MapCopy(const MapCopy&) = delete;
    MapCopy& operator=(const MapCopy&) = delete;

    MapDocument& Document() const { return *m_document; }

private:
    TemporaryMap m_copy;
    std::unique_ptr<MapDocument> m_document;
};

} // namespace Orvane
