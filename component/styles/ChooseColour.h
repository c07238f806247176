// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

class QWidget;

namespace Orvane {

/// Asks the person for a colour in the common colour dialog, titled "Extended Colours" in their language.
/// owner: the window in front of which it stands. start: where it begins, BGR; the top byte is ignored.
/// Nothing when it was cancelled. The owner may be gone when it returns.
std::optional<qint32> ChooseColour(QWidget* owner, qint32 start);

} // namespace Orvane
