// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace Orvane {

/// A list that is as wide as its minimumContentsLength, whatever its entries. The part that opens is made
/// when it is opened first, unlike that of a QComboBox with such a width.
class NarrowCombo : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace Orvane
