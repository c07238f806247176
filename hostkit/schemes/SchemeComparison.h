// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/schemes/SchemeParts.h>

#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <optional>
#include <vector>

namespace Orvane {

class ILayerStore;

/// One value of a layer that differs between two schemes, or between the layers as they are and a scheme.
struct SchemeDifference {
    /// What differs: the value, or one side has no values of the layer at all.
    enum class Kind { Value, NotInFirst, NotInSecond };

    qint32 layerID = 0;
    Kind kind = Kind::Value;
    std::size_t column = 0; ///< position in SchemeColumns::All; 0 unless a value differs
    std::optional<double> from; ///< nothing for NULL; a flag is 1 or 0
    std::optional<double> to; ///< as above
};

/// Compares the saved values of schemes, and the layers as they are.
namespace SchemeComparison {

/// Everything that differs between two sides in the properties that both hold, in the order of the layers'
/// names and of the columns. from: nothing for the layers as they are. from, to: names of schemes; raises
/// HostError::UnknownScheme. Asks the watcher of the store after each layer.
std::vector<SchemeDifference>
Compare(ILayerStore& map, const std::optional<QString>& from, const QString& to);

/// The properties that both sides hold, of which there may be none. As above.
SchemeParts CommonParts(ILayerStore& map, const std::optional<QString>& from, const QString& to);

} // namespace SchemeComparison

} // namespace Orvane
