// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// The meaning of the numbers in a layer's columns that are not plain quantities.
namespace Orvane {

/// A colour that paints nothing. Colours are BGR integers, red in the low byte; a fill colour is transparent
/// if any bit of its top byte is set, and this is the value that is written. In a line colour, the same byte
/// means that symbols keep their own colours.
inline constexpr qint32 TransparentColour = qint32(0xFF000000u);

/// The fill styles, 0 to LastFillStyle. All are patterns except these two.
inline constexpr qint16 SolidFill = 0;
inline constexpr qint16 HollowFill = 15;
inline constexpr qint16 LastFillStyle = 31;

/// The kind to pass to IShellServices::FillPattern for fill patterns.
inline constexpr int FillPatternKind = 7;

/// The quick modes, as nodes show them; the OverrideMode column holds 0, 1 and 2 for the last three.
namespace QuickMode {

inline constexpr qint16 Various = 0; ///< members differ; never stored
inline constexpr qint16 Normal = 1; ///< drawn as it is set
inline constexpr qint16 Backdrop = 2; ///< drawn behind the others, in the background
inline constexpr qint16 Hidden = 4; ///< not drawn

} // namespace QuickMode

} // namespace Orvane
