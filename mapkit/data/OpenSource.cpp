// SPDX-License-Identifier: MIT
#include "mapkit/data/OpenSource.h"

#include "mapkit/data/DataSource.h"
#include "mapkit/data/PackageReader.h"
#include "mapkit/data/SourceReader.h"

#include <utility>

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

PackageReader& OpenSource::PackageAt(const QString& path)
{
    if (!m_package || path != m_package->Path())
        m_package = std::make_unique<PackageReader>(path);
    return *m_package;
}

FeatureSet OpenSource::Read(const LayerSource& source, const QString& mapSystem, Progress& progress)
{
    if (auto features = PackageAt(source.path).Read(source, mapSystem, progress))
        return std::move(*features);
    return At(source.path)
        .Read(source.ogrLayer, source.filter, mapSystem, progress, source.choice, source.system);
}

} // namespace Orvane
