// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

class QWidget;

namespace Orvane {

/// Asks the user for a colour in the common colour dialog, titled "Extended Colours" in the user's language.
/// owner: the window in front of which it is shown. start: the initial colour, BGR; the top byte is ignored.
/// Nothing if the user cancelled. The owner may be destroyed when it returns.
std::optional<qint32> ChooseColour(QWidget* owner, qint32 start);

} // namespace Orvane
