// SPDX-License-Identifier: MIT
#include "mapkit/data/SourceAttributes.h"

#include "mapkit/data/ServerTables.h"

namespace Orvane {

SourceAttributes::SourceAttributes(const LayerSource& source) : m_source(source)
{
    if (!IsServerTable(source.path))
        m_file = std::make_unique<const DataSource>(source.path);
}

SourceAttributes::~SourceAttributes() = default;

std::vector<SourceField> SourceAttributes::Fields() const
{
    return m_file ? m_file->Fields(m_source.ogrLayer) : TablesOf(m_source).Fields(m_source.ogrLayer);
}

std::unordered_map<qint64, FieldValue>
SourceAttributes::ReadField(const QString& field, Progress& progress) const
{
    return m_file ? m_file->ReadField(m_source.ogrLayer, m_source.filter, field, progress)
                  : TablesOf(m_source).ReadField(m_source, field, progress);
}

std::vector<FeatureAttribute> SourceAttributes::OfFeature(qint64 featureID) const
{
    return m_file ? m_file->Attributes(m_source.ogrLayer, featureID)
                  : TablesOf(m_source).Attributes(m_source.ogrLayer, featureID);
}

} // namespace Orvane
