// SPDX-License-Identifier: MIT
#include "component/common/TextHelpers.h"

#include <utility>

namespace Orvane {

QString NextToken(QString& remaining, const QString& delimiter)
{
    const qsizetype found = delimiter.isEmpty() ? -1 : remaining.indexOf(delimiter);
    if (found < 0)
        return std::exchange(remaining, QString());
    QString token = remaining.left(found);
    remaining.remove(0, found + delimiter.size());
    return token;
}

} // namespace Orvane
