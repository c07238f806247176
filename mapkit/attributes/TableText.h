// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"

#include <QLocale>

#include <vector>

namespace Orvane {

/// These rows of a layer's table as tab-separated text: a line with the names of the columns, then one line
/// for each row, in that order. Values are as CellText writes them, tabs and line ends in them as blanks;
/// rows that no longer exist are left out. Raises SourceUnreadable and Cancelled.
QString TableText(
    const LayerSource& source, const std::vector<qint64>& ids, const QLocale& locale, Progress& progress);

} // namespace Orvane
