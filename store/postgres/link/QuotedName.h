// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Orvane {

/// A name as a statement for PostgreSQL writes it, in UTF-8 and in quotes, whatever it contains: no name can
/// end the quotes. Every name that is not part of this program's own texts goes through here.
QByteArray QuotedName(const QString& name);

} // namespace Orvane
