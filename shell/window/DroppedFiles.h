// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QDropEvent;
class QMimeData;

namespace Orvane {

/// The paths of the files that are dragged, without those that are not on this computer.
QStringList LocalFiles(const QMimeData& data);

/// Accepts a drag or a drop of such files as a copy, whatever the other program proposes: a move would let it
/// delete its files. Returns whether it was accepted; a drag without files, or that allows no copy, is
/// refused.
bool TakeAsCopy(QDropEvent& event);

} // namespace Orvane
