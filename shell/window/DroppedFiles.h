// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QMimeData;

namespace Orvane {

/// The paths of the files that are dragged, without those that are not on this computer.
QStringList LocalFiles(const QMimeData& data);

} // namespace Orvane
