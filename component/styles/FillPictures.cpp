// SPDX-License-Identifier: MIT
#include "component/styles/FillPictures.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

namespace {

bool IsFillStyle(int number)
{
    return number >= 0 && number < FillPictures::Count;
}

[[noreturn]] void RaiseSubscriptOutOfRange()
{
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
}

} // namespace

void FillPictures::Load(int fillStyle)
{
    if (!IsFillStyle(fillStyle))
        RaiseSubscriptOutOfRange();
    auto& element = m_pictures[size_t(fillStyle)];
    if (!element)
        element.emplace();
}

void FillPictures::SetPicture(int fillStyle, const MonochromeBitmap& picture)
{
    if (!IsFillStyle(fillStyle) || !m_pictures[size_t(fillStyle)])
        RaiseSubscriptOutOfRange();
    m_pictures[size_t(fillStyle)] = picture;
}

MonochromeBitmap FillPictures::Picture(int fillStyle) const
{
    if (!IsFillStyle(fillStyle))
        return {};
    return m_pictures[size_t(fillStyle)].value_or(MonochromeBitmap());
}

} // namespace Orvane
