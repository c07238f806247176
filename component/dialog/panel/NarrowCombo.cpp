// SPDX-License-Identifier: MIT
#include "component/dialog/panel/NarrowCombo.h"

#include "ovctrls/ComboSize.h"

#include <QStyleOptionComboBox>

namespace Orvane {

QSize NarrowCombo::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return ComboSizeForLength(*this, option);
}

} // namespace Orvane
