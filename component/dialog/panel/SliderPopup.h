// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/SliderQuestion.h"

#include <QPointer>

namespace Orvane {

class frmDropSlider;

/// The one drop-down slider of a dialog: made when it is first asked, and kept.
class SliderPopup
{
public:
    /// owner: the dialog in front of which it opens; outlives this object.
    explicit SliderPopup(QWidget& owner) : m_owner(owner) { }

    /// Opens the slider under the question's button and waits. When nothing is answered the owner may be
    /// gone.
    std::optional<Value> Ask(const SliderQuestion& question);

private:
    QWidget& m_owner;
    QPointer<frmDropSlider> m_slider; // a child of the owner
};

} // namespace Orvane
