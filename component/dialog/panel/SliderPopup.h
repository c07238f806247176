// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/SliderQuestion.h"

#include <QPointer>

namespace Orvane {

class frmDropSlider;

/// The only drop-down slider of a dialog: created on first use, and kept.
class SliderPopup
{
public:
    /// owner: the dialog in front of which it opens; outlives this object.
    explicit SliderPopup(QWidget& owner) : m_owner(owner) { }

    /// Opens the slider under the question's button and waits. If nothing is returned, the owner may have
    /// been destroyed.
    std::optional<Value> Ask(const SliderQuestion& question);

private:
    QWidget& m_owner;
    QPointer<frmDropSlider> m_slider; // a child of the owner
};

} // namespace Orvane
