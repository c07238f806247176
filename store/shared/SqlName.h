// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// A name as a statement for SQLite writes it, in quotes, whatever it contains: no name can end the quotes.
inline QString SqlName(QString name)
{
    return u'"' + name.replace(u'"', QLatin1String("\"\"")) + u'"';
}

} // namespace Orvane
