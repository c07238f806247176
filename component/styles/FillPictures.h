// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/MonochromeBitmap.h>

#include <array>
#include <optional>

namespace Orvane {

/// The pattern bitmaps of the fill styles. Element n holds the bitmap of fill style n once it is loaded.
class FillPictures
{
public:
    static constexpr int Count = 32;

    /// Creates the element; an existing one keeps its picture. Raises 9 (subscript out of range) outside 0 to
    /// 31.
    void Load(int fillStyle);

    /// Replaces the picture of a loaded element. Raises 9 for one that is not loaded.
    void SetPicture(int fillStyle, const MonochromeBitmap& picture);

    /// The picture; one without pixels if none was set.
    MonochromeBitmap Picture(int fillStyle) const;

private:
    std::array<std::optional<MonochromeBitmap>, Count> m_pictures;
};

} // namespace Orvane
