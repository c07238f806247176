// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/HostDescription.h>

#include <QString>

namespace Orvane {

/// Why this component cannot work with that host; empty if it can. For the user, translated; it continues a
/// sentence and has no full stop.
QString ReasonAgainst(const HostDescription& host);

/// Writes the text as UTF-8 with a 0 at the end, without the last characters if it is longer than size bytes.
/// target may be nullptr.
void WriteReason(const QString& reason, char* target, quint32 size);

} // namespace Orvane
