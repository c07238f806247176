// SPDX-License-Identifier: MIT
#pragma once

#include "samples/StyleStrings.h"

#include <QString>
#include <QtGlobal>

namespace Orvane {

/// Descriptions, in the user's language, of items that are pictures: for screen readers, as tool tips, and
/// for searching the list by typing.

/// The name of a standard colour, "#RRGGBB" for any other. colour: BGR.
QString ColourDescription(qint32 colour);
QString LineDescription(const LineItem& line);
QString FillDescription(qint32 style);

} // namespace Orvane
