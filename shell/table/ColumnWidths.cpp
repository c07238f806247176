// SPDX-License-Identifier: MIT
#include "shell/table/ColumnWidths.h"

#include <QTableView>

namespace Orvane {

namespace {

// Characters of a mean width.
constexpr int WidestColumn = 40;
constexpr int NarrowestColumn = 8;
constexpr int MoreThanFirstRows = 3; // later ones are often longer

} // namespace

void FitToFirstRows(QTableView& view)
{
    const int character = view.fontMetrics().averageCharWidth();
    const int widest = WidestColumn * character;
    const int narrowest = NarrowestColumn * character;
    const int more = MoreThanFirstRows * character;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        view.resizeColumnToContents(column);
        view.setColumnWidth(column, qBound(narrowest, view.columnWidth(column) + more, widest));
    }
}

} // namespace Orvane
