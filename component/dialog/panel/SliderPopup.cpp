// SPDX-License-Identifier: MIT
#include "component/dialog/panel/SliderPopup.h"

#include "component/controls/Twips.h"
#include "component/controls/frmDropSlider.h"

namespace Orvane {

std::optional<Value> SliderPopup::Ask(const SliderQuestion& question)
{
    if (!m_slider)
        m_slider = new frmDropSlider(&m_owner);
    const TwipPoint anchor = PopupAnchor(*question.button);
    Value value = question.value;
    const bool isConfirmed = m_slider->Popup(
        &m_owner, *question.translator, anchor.x, anchor.y, question.caption, value, question.defaultValue,
        question.minimum, question.maximum, question.allowVarious);
    return isConfirmed ? std::optional(value) : std::nullopt;
}

} // namespace Orvane
