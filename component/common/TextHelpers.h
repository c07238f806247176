// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Removes the text before the first delimiter, and the delimiter, from the remaining text and returns that
/// text. Without a delimiter the whole text is returned and nothing remains. An empty delimiter is never
/// found.
///
///     QString rest = "a:b:c";
///     NextToken(rest, ":");  // "a", and rest is "b:c"
QString NextToken(QString& remaining, const QString& delimiter);

} // namespace Orvane
