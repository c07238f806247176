// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"
#include "mapkit/data/SourceReader.h"

#include <memory>

namespace Orvane {

/// The attributes of a layer's features, whether they are in a file or in a table on a server.
///
///     for (const SourceField& field : SourceAttributes(source).Fields())
///
/// Raises as the members of DataSource do.
class SourceAttributes
{
public:
    /// Opens a file; a server is asked later.
    explicit SourceAttributes(const LayerSource& source);
    ~SourceAttributes();
    SourceAttributes(const SourceAttributes&) = delete;
    SourceAttributes& operator=(const SourceAttributes&) = delete;

    /// The attributes, in the source's order.
    std::vector<SourceField> Fields() const;
    /// The values of one attribute by feature ID.
    std::unordered_map<qint64, FieldValue> ReadField(const QString& field, Progress& progress) const;
    /// The attributes of one feature; none if it no longer exists.
    std::vector<FeatureAttribute> OfFeature(qint64 featureID) const;

private:
    LayerSource m_source;
    std::unique_ptr<const DataSource> m_file; // nullptr for a table on a server
};

} // namespace Orvane
