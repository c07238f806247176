// SPDX-License-Identifier: MIT
#include "shell/command/MapCopy.h"

#include "mapkit/document/MapDocument.h"
#include "shell/servers/ServerAccess.h"

namespace Orvane {

MapCopy::MapCopy(const QString& map)
    : m_copy(map), m_document(MapDocument::OpenCopy(m_copy.Path(), map, AccessHere(map)))
{
}

MapCopy::~MapCopy() = default;

} // namespace Orvane
