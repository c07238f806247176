// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// What the data of a layer are.
enum class DataKind {
    Features, ///< points, lines and areas
    Raster, ///< a picture or a grid
};

/// The kind as a text for a file; empty for features.
inline QString TextOfKind(DataKind kind)
{
    return kind == DataKind::Raster ? QStringLiteral("raster") : QString();
}

/// The kind that such a text means; features for a text that is not understood.
inline DataKind KindInText(const QString& text)
{
    return text == QLatin1String("raster") ? DataKind::Raster : DataKind::Features;
}

} // namespace Orvane
