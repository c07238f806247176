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

/// The name of the attribute that fits best: a name for labels, a number that is no identifier for classes;
/// empty when no attribute can serve.
QString BestAttribute(const std::vector<SourceField>& fields, AttributeUse use);

/// One attribute of a layer's features. Immutable once read, for any thread.
struct AttributeColumn {
    QString attribute; ///< which was read; empty when the source has none that can serve
    std::vector<QString> texts; ///< for labels, one a feature; empty when there is no attribute
    std::vector<double> numbers; ///< for classes, one a feature, not a number where there is none; or empty
};

/// What to read.
struct AttributeRequest {
    LayerSource source;
    std::shared_ptr<const FeatureSet> features; ///< as read from the source
    AttributeUse use = AttributeUse::Labels;
    QString attribute; ///< empty: the one that fits best
};

/// Reads the attribute of the request's features, in their order. An attribute that the source does not have
/// counts as none. Raises SourceUnreadable and Cancelled.
AttributeColumn ReadAttribute(const AttributeRequest& request, Progress& progress);

} // namespace Orvane
