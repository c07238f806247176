// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace Orvane {

/// The key of a layer or group in a collection that is keyed by text, e.g. "IDequals_17".
inline QString CollectionKey(qint32 id)
{
    return QStringLiteral("IDequals_") + QString::number(id);
}

} // namespace Orvane
