// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/rows/LayerSample.h"

#include <QIcon>
#include <QSize>

namespace Orvane {

/// The size of a row's image with a sample after it. image: of the image alone.
QSize SizeWithSample(const QSize& image);

/// A row's image and after it, in the direction of reading, the layer's sample; without a sample its place
/// stays empty. sample: copied; may be nullptr. listBack: the background of the list, BGR.
QIcon WithSample(
    const QIcon& image, const LayerSample* sample, qint32 listBack, Qt::LayoutDirection direction);

} // namespace Orvane
