// SPDX-License-Identifier: MIT
#include "ovctrls/ComboSize.h"

#include <QComboBox>
#include <QStyleOptionComboBox>
#include <QtMath>

#include <algorithm>

namespace Orvane {

namespace {

// In pixels, as QComboBox has them.
constexpr int gapAtIcon = 4;
constexpr int leastTextHeight = 14;
constexpr int spaceAround = 2;

} // namespace

QSize ComboSizeForLength(const QComboBox& box, const QStyleOptionComboBox& option)
{
    const QFontMetrics metrics = box.fontMetrics();
    const QSize icon = box.iconSize();
    const int letters = box.minimumContentsLength() * metrics.horizontalAdvance(QLatin1Char('X'));
    const int placeholder
        = box.placeholderText().isEmpty() ? 0 : metrics.boundingRect(box.placeholderText()).width();
    const int text = std::max(qCeil(QFontMetricsF(metrics).height()), leastTextHeight);
    const QSize contents(
        std::max(letters + icon.width() + gapAtIcon, placeholder),
        std::max(text, icon.height()) + spaceAround);
    return box.style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, &box);
}

} // namespace Orvane
