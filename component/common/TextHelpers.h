// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Takes the text before the first delimiter off the remaining text, and the delimiter with it; all of it
/// when there is no delimiter, which leaves nothing. An empty delimiter is never found.
///
///     QString rest = "a:b:c";
///     NextToken(rest, ":");  // "a", and rest is "b:c"
QString NextToken(QString& remaining, const QString& delimiter);

} // namespace Orvane
