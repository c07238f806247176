// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"

#include <QString>

#include <vector>

namespace Orvane {

class Progress;
struct SourceField;

/// What an attribute is read for.
enum class AttributeUse { Labels, Classes };

/// The name of the most suitable attribute: a name for labels; for classes, a number that is not an
/// identifier. Empty if no attribute is suitable.
QString BestAttribute(const std::vector<SourceField>& fields, AttributeUse use);

/// One attribute of a layer's features. Does not change after it is read, so that any thread may use it.
struct AttributeColumn {
    QString attribute; ///< the attribute that was read; empty if the source has no suitable one
    std::vector<QString> texts; ///< for labels, one per feature; empty if there is no attribute
    std::vector<double> numbers; ///< for classes, one per feature, NaN for a missing number; or empty
};

/// What to read.
struct AttributeRequest {
    LayerSource source;
    std::shared_ptr<const FeatureSet> features; ///< as read from the source
    AttributeUse use = AttributeUse::Labels;
    QString attribute; ///< empty: the most suitable one
};

/// Reads the attribute of the request's features, in their order. An attribute that the source does not have
/// counts as none. Raises SourceUnreadable and Cancelled.
AttributeColumn ReadAttribute(const AttributeRequest& request, Progress& progress);

} // namespace Orvane
