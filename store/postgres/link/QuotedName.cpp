// SPDX-License-Identifier: MIT
#include "store/postgres/link/QuotedName.h"

namespace Orvane {

QByteArray QuotedName(const QString& name)
{
    return '"' + name.toUtf8().replace("\"", "\"\"") + '"';
}

} // namespace Orvane
