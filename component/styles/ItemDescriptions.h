// SPDX-License-Identifier: MIT
#pragma once

#include "samples/StyleStrings.h"

#include <QString>
#include <QtGlobal>

namespace Orvane {

/// What is said, in the person's language, of items that are pictures: by screen readers, and to those who
/// search the list by typing.

/// The name of a standard colour, "#RRGGBB" for any other. colour: BGR.
QString ColourDescription(qint32 colour);
QString LineDescription(const LineItem& line);
QString FillDescription(qint32 style);

} // namespace Orvane
