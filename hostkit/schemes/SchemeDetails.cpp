// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeDetails.h"

namespace Orvane {

QString TextOfTime(const QDateTime& time)
{
    return time.toUTC().toString(Qt::ISODate);
}

QDateTime TimeOfText(const QString& text)
{
    return QDateTime::fromString(text, Qt::ISODate).toUTC();
}

} // namespace Orvane
