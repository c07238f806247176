// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace Orvane {

/// A fill pattern in its colours, as a picture inside a symbol: QGIS draws it without the plug-in. The
/// picture says what it shows, so it stays true wherever the symbol is copied to.
struct FillPicture {
    qint32 style = 0; ///< the number of a pattern, as in FillPatterns.h
    qint32 fore = 0; ///< BGR; a top byte other than 0: transparent
    qint32 back = 0; ///< BGR; a top byte other than 0: transparent

    /// The picture as QGIS keeps it in place of a file's path: "base64:" and a PNG. lineColour: BGR, for a
    /// pattern whose colours are both transparent. Raises 9 (subscript out of range) if there is no such
    /// pattern.
    QString Encoded(qint32 lineColour) const;
    /// Nothing if the path is not one that Encoded has made.
    static std::optional<FillPicture> Decoded(const QString& path);

    bool operator==(const FillPicture&) const = default;
};

/// The width of the picture on screen and paper, in points: a pixel of the pattern is one at 96 pixels per
/// inch. A little more than 6, because QGIS cuts off the fraction of a pixel.
inline constexpr double FillPictureWidth = 6.01;

} // namespace Orvane
