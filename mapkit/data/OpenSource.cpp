// SPDX-License-Identifier: MIT
#include "mapkit/data/OpenSource.h"

#include "mapkit/data/DataSource.h"

namespace Orvane {

OpenSource::OpenSource() = default;

OpenSource::~OpenSource() = default;

const DataSource& OpenSource::At(const QString& path)
{
    if (!m_source || path != m_path) {
        m_source.reset();
        m_source = std::make_unique<const DataSource>(path);
        m_path = path;
    }
    return *m_source;
}

} // namespace Orvane
