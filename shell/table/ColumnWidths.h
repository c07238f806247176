// SPDX-License-Identifier: MIT
#pragma once

class QTableView;

namespace Orvane {

/// Makes the columns as wide as their names and the rows in sight need them, with some room for longer values
/// of later rows, and within limits.
void FitToFirstRows(QTableView& view);

} // namespace Orvane
