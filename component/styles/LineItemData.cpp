// SPDX-License-Identifier: MIT
#include "component/styles/LineItemData.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

constexpr qint32 dataPerThickness = 20; // larger than every line style number

} // namespace

qint32 LineStyleItemData(qint16 style, qint16 thickness)
{
    if (style != 0)
        return style;
    return ToInt16(thickness * dataPerThickness);
}

SelectedLine ReadSelectedLine(int selectedIndex, int variousIndex, qint32 itemData)
{
    if (selectedIndex == variousIndex)
        return {Value::Null(), Value::Null()};
    const bool isThickness = itemData >= dataPerThickness || itemData <= -dataPerThickness;
    if (isThickness)
        return {qint16(0), double(itemData) / dataPerThickness};
    return {qint16(itemData), qint16(0)};
}

} // namespace Orvane
