// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Orvane {

/// The order of schemes after the user has moved some of them. names: all, each once; chosen: some of them.
namespace SchemeOrder {

/// Each chosen one a place further up, together with its chosen neighbours.
QStringList MovedUp(QStringList names, const QStringList& chosen);
/// Each chosen one a place further down.
QStringList MovedDown(QStringList names, const QStringList& chosen);
/// The chosen ones together, before the one that was at that position; at the end if there is none.
QStringList MovedTo(const QStringList& names, const QStringList& chosen, int position);

} // namespace SchemeOrder

} // namespace Orvane
