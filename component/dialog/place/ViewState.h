// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/place/ListTab.h"

#include <QString>

#include <optional>

namespace Orvane {

/// A window's outer size in twips, single precision as it is stored.
struct WindowSize {
    float width = 0;
    float height = 0;
    bool operator==(const WindowSize&) const = default;
};

/// The last state of a dialog, in the form of its stored setting: "9000:7000:LAYERS:EXPANDED".
///
///     const ViewState state = ViewState::FromText(client.ReadSetting(form, key));
///     client.WriteSetting(form, key, state.ToText());
///
/// Reading never fails, whatever the text is; a value that cannot be used is left as nothing.
struct ViewState {
    std::optional<WindowSize> size; ///< nothing: the size stays; both sides are finite and above 0
    std::optional<bool> expanded; ///< nothing: stays as it is, since a side of the size was missing
    ListTab tab = ListTab::Layers; ///< an empty word means Layers, an unknown one Groups

    bool samples = false; ///< the lists show samples of line and fill

    static ViewState FromText(const QString& text);

    /// Numbers in plain decimal form, the shortest that reads back the same. A missing size leaves both
    /// fields empty. Samples add a last word: "9000:7000:LAYERS:EXPANDED:LINE AND FILL".
    QString ToText() const;

    bool operator==(const ViewState&) const = default;
};

} // namespace Orvane
