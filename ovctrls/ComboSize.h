// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QComboBox;
class QStyleOptionComboBox;

namespace Orvane {

/// The size of a closed combo box with room for its minimumContentsLength, an icon and its placeholder,
/// whatever its items: what QComboBox takes with AdjustToMinimumContentsLengthWithIcon. It makes the list as
/// soon as that policy is set, which takes longer than the box itself. option: of the box.
QSize ComboSizeForLength(const QComboBox& box, const QStyleOptionComboBox& option);

} // namespace Orvane
