// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/RendererStyle.h>

#include <QByteArray>

#include <optional>

namespace Orvane {

/// Settings of a layer, or those that several layers have in common, as they travel from one program to
/// another: in numbers that mean the same for every host.
///
///     const QByteArray bytes = settings.ToBytes();
///     const std::optional<CopiedSettings> read = CopiedSettings::FromBytes(bytes);
///
/// Nothing here raises.
struct CopiedSettings {
    /// Denominators of scales; 0: no limit.
    struct Scales {
        double minimum = 0;
        double maximum = 0;
    };

    qint16 quickMode = QuickMode::Various; ///< 1, 2 or 4; any other: not copied
    LayerStyle style; ///< Null: not copied; without name, code, scales and renderer style
    std::optional<Scales> scales;
    std::optional<RendererStyle> rendererStyle; ///< the number 0 is "Standard"

    /// True if nothing is copied.
    bool IsEmpty() const;

    /// As JSON, with a version.
    QByteArray ToBytes() const;
    /// The reverse. A value that no panel could show is left out; nothing for bytes of another kind or of a
    /// newer version.
    static std::optional<CopiedSettings> FromBytes(const QByteArray& bytes);
};

} // namespace Orvane
